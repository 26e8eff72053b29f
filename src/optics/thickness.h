// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

#include "base/flag.h"
#include "base/message.h"
#include "base/spectrum.h"
#include "base/status.h"
#include "optics/extremum_list.h"

namespace vexa {

/// Which extrema a thickness is computed from.
struct ThicknessType {
  static constexpr std::int16_t kA = 0;  ///< the last two minima
  static constexpr std::int16_t kB = 1;  ///< the first and the last maximum
  static constexpr std::int16_t kC = 2;  ///< the first and the last of maxima and minima
};

struct ThicknessKind {
  static constexpr std::int16_t kPhysical = 0;
  static constexpr std::int16_t kOptical = 1;  ///< index times thickness
};

/// Results of ComputeThickness besides 0.
inline constexpr Status kTooFewExtrema = -1;   ///< none or one
inline constexpr Status kTooManyExtrema = -2;  ///< 50 or more
inline constexpr Status kThicknessFault = -3;  ///< no finite thickness, or type A's kind unknown
inline constexpr Status kThicknessTypeFault = -4;  ///< unknown type

/// What a computation found. All is zero, and the list empty, after any failure.
struct ThicknessResult {
  ExtremumPoint first;  ///< the two extrema in the formula
  ExtremumPoint second;
  double thicknessNm = 0.0;
  Flag physical = true;     ///< otherwise index times thickness
  double firstIndex = 0.0;  ///< of the film at the two extrema
  double secondIndex = 0.0;
  ExtremumList extrema;

  /// Two extrema always have wavelengths.
  [[nodiscard]] bool IsComputed() const { return first.wavelengthNm > 0.0; }
};

/// The thickness of a single film from the interference extrema of a reflectance spectrum.
///
/// Two neighbouring extrema of the same sort at w1 < w2 are one order apart: 2 n1 d / w1 -
/// 2 n2 d / w2 = 1, so that d = 0.5 w1 w2 / (n1 w2 - n2 w1), and n d = 0.5 w1 w2 / (w2 - w1) with
/// one index (M. Born, E. Wolf, Principles of Optics, section 7.5). Type A takes two neighbours,
/// type B the N - 1 orders between N maxima, type C the N - 1 half orders between N extrema.
/// Example: maxima at 500 and 600 nm alone give an optical thickness of 1500 nm.
///
/// `filmIndex` is looked up at the extrema. With `substrateMode` equal to
/// DispersionKind::kSubstrate and type A or B, it is first replaced, in place and at every
/// wavelength, by sqrt(substrateIndex N(R)) with N(R) of ReflectanceToIndex; a fault on the way
/// leaves the values before it replaced. The mean substrate index then decides which extrema count:
/// minima when it is above N of the mean reflectance, otherwise maxima. A substrate without an
/// index (zeros) is a fault, and so is type C with a substrate: nobody gave an index for it.
///
/// With an unknown kind type A fails; types B and C succeed with the two extrema and a thickness of
/// 0.
[[nodiscard]] Status ComputeThickness(std::int16_t type, std::int16_t kind,
                                      std::int16_t substrateMode,
                                      const ReflectanceSpectrum& substrateIndex,
                                      const ReflectanceSpectrum& spectrum,
                                      ReflectanceSpectrum& filmIndex, ThicknessResult& result);

/// What to tell the user about a status of ComputeThickness other than 0.
[[nodiscard]] MessageCall ThicknessMessage(Status status);

/// "[nm]" for a physical thickness, "[nd]" for an optical one.
[[nodiscard]] QString ThicknessUnit(bool physical);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "base/spectrum.h"
#include "base/translation.h"
#include "colour/colorimetry.h"

namespace vexa {

/// The colour of a spectrum by the published tables at their true wavelengths, as any other
/// colorimeter gives it. It stands beside ColourResult, which pairs the tables with the spectrum by
/// index, and is never mixed with it. What does not exist is not a number.
struct CieColour {
  double X = 0.0;  ///< tristimulus values, Y = 100 for a perfect reflector
  double Y = 0.0;
  double Z = 0.0;
  double x = 0.0;  ///< chromaticity; not a number when nothing is reflected
  double y = 0.0;
  double L = 0.0;  ///< CIE 1976 L*a*b*
  double a = 0.0;
  double b = 0.0;
  double C = 0.0;       ///< chroma C*
  double h = 0.0;       ///< hue angle, 0 up to 360 degrees; not a number when C* is below 1e-9
  double Rv = 0.0;      ///< luminous reflectance in percent: Y for D65 and the 2-degree observer
  double spread = 0.0;  ///< Delta E*ab between the two ways of continuing the spectrum, see below
};

/// The CIE colour for the illuminant and the observer of `settings`; nothing for an illuminant
/// outside 1..4 and for values that are not finite.
///
/// X, Y and Z are sums over 380 to 780 nm in steps of 5 nm (CIE 15:2004, 7.1). The spectrum begins
/// at 440 nm; below, it is continued with its value at 440 nm. `spread` compares this colour with
/// that of the linear continuation: the straight line of least squares through the values at 440 to
/// 460 nm (21 of them, so that noise is not carried far), nowhere below 0. It tells how much hangs
/// on the missing range, and is no bound: a spectrum may turn there.
/// L*, a*, b*: ISO/CIE 11664-4:2019, with the exact constants 216/24389 and 24389/27, each ratio
/// taking its own branch, and the white of the same sums.
/// Example: 4 % at every wavelength gives Y 4, L* 23.665, a* and b* 0, spread 0.
[[nodiscard]] std::optional<CieColour> CalcCieColour(const ReflectanceSpectrum& reflectance,
                                                     const ColourSettings& settings);

/// What is said beside every CIE colour about the range that was not measured.
[[nodiscard]] QString CieRangeText();
/// The same in the source language, for files.
inline constexpr const char* kCieRange = QT_TRANSLATE_NOOP("Text", "440 nm より下は外挿");

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/spectrum.h"
#include "optics/thickness.h"

namespace vexa {

/// Why a result of ComputeThickness should not be believed. The first four are signs that an
/// extremum was split, missed or misread; they count unless the fringes as a whole confirm the
/// number.
enum class ThicknessDoubt {
  kEdge,       ///< an extremum that counts lies within 7 nm of an end of the range
  kDuplicate,  ///< the same extremum twice, or two neighbours of the same kind
  kSpacing,    ///< the extrema are not spaced as one film's orders are
  kNoise,      ///< a fringe not higher than the noise
  kDisagrees,  ///< differs by more than 1.4 % from what the fringes as a whole say
};

/// The thickness that the fringes as a whole say: near the peaks of the Fourier transform (below
/// 1.5 um everywhere) and near `aroundNm`, the thickness d for which a smooth level and a smooth
/// amplitude times cos(2 pi x d), x = 2 n(w) / w, leave the least squares. The phase of the cosine
/// is 0 or pi, as it is for indices without absorption, so that the order counts absolutely; with
/// `phaseKnown` false it is free, for an index that is not known.
struct WholeFringeThickness {
  double thicknessNm = 0.0;
  double sumOfSquares = 0.0;  ///< of the residual, squared percent
  /// Further thicknesses that fit nearly as well.
  std::vector<double> rivalsNm;
};

/// Nothing when no fringe stands out of the noise, or when TransformFringes has nothing.
[[nodiscard]] std::optional<WholeFringeThickness> FitWholeFringes(
    const ReflectanceSpectrum& spectrum, const ReflectanceSpectrum& filmIndex, double aroundNm,
    bool phaseKnown = true);

/// The doubts about a result, each once, in the order of the enumeration; none for a result that
/// was not computed. `type` and `filmIndex` are those that ComputeThickness took, the index as it
/// left it.
[[nodiscard]] std::vector<ThicknessDoubt> FindThicknessDoubts(std::int16_t type,
                                                              const ReflectanceSpectrum& spectrum,
                                                              const ReflectanceSpectrum& filmIndex,
                                                              const ThicknessResult& result);

/// "edge", "duplicate", "spacing", "noise", "disagrees".
[[nodiscard]] QString ThicknessDoubtName(ThicknessDoubt doubt);

/// The doubt in words, for the user.
[[nodiscard]] QString ThicknessDoubtText(ThicknessDoubt doubt);

}  // namespace vexa

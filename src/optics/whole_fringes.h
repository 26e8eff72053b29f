// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "base/spectrum.h"

namespace vexa {

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

}  // namespace vexa

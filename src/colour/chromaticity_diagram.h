// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "base/flag.h"

namespace vexa {

struct Chromaticity {
  double x = 0.0;
  double y = 0.0;
};

/// A point of the spectral locus.
struct LocusPoint {
  int nm = 0;
  Chromaticity at;
};

/// The spectral locus of an observer, 380 to 700 nm every 5 nm. Above 700 nm the tables have too
/// few digits left: their rounding would move the point further than the wavelength does.
[[nodiscard]] std::vector<LocusPoint> SpectralLocus(Flag observer2Deg);

/// The chromaticity of an illuminant, 1..4, from the sums of the tables; nothing for another
/// number.
[[nodiscard]] std::optional<Chromaticity> WhitePointOf(int illuminant, Flag observer2Deg);

/// What a standard asks for, as it is drawn on the a*b* diagram.
struct ToleranceRegion {
  std::vector<double> chromaRadii;        ///< circles around the origin, not negative
  std::vector<double> hueAnglesDeg;       ///< lines from the origin
  std::optional<double> referenceChroma;  ///< dashed circle
  std::optional<double> referenceHueDeg;  ///< dashed line
};

}  // namespace vexa

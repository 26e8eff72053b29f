// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "base/spectrum.h"
#include "standards/standard_set.h"

namespace vexa {

/// The limits of the reflectance at one wavelength.
struct BandPoint {
  int nm = 0;
  double upper = 0.0;
  double lower = 0.0;
};

/// The limits that a standard sets for the reflectance, a list of points in ascending wavelength
/// for each judged segment. Points outside 440..840 nm are left out. Empty when no band is judged.
[[nodiscard]] std::vector<std::vector<BandPoint>> ReflectanceBand(const StandardSet& standard);

struct BandVerdict {
  bool passed = true;
  std::optional<double> margin;
  int marginNm = 0;
};

/// The verdict on a spectrum; nothing when no band is judged. See JudgeStandards.
[[nodiscard]] std::optional<BandVerdict> JudgeReflectanceBand(
    const ReflectanceSpectrum& reflectance, const StandardSet& standard);

}  // namespace vexa

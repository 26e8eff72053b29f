// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include "colour/cie_colour.h"
#include "colour/colour_difference.h"
#include "standards/judgement.h"
#include "standards/standard_set.h"

namespace vexa {

/// Limits of CIE values, beside the standard and judged apart from it; all off at first.
struct CieLimits {
  StandardLimits luminousReflectance;  ///< Rv, percent
  StandardLimits L;
  StandardLimits a{false, 100.0, -100.0};
  StandardLimits b{false, 100.0, -100.0};
  StandardLimits chroma;                       ///< C*
  StandardLimits hueAngle{false, 360.0, 0.0};  ///< degrees; upper below lower: through 0
  StandardLimits deltaE00;                     ///< CIEDE2000 to `target`
  LabColour target;

  bool operator==(const CieLimits&) const = default;
};

/// What is judged, in the order of CieJudgement.
enum class CieGroup { kLuminousReflectance, kL, kA, kB, kChroma, kHueAngle, kDeltaE00 };
inline constexpr std::size_t kCieGroupCount = 7;

/// The limits of each CieGroup, under the name that files give them.
struct CieLimitsEntry {
  const char* name;
  StandardLimits CieLimits::*limits;
};
inline constexpr std::array<CieLimitsEntry, kCieGroupCount> kCieLimitsEntries{
    {{"Rv", &CieLimits::luminousReflectance},
     {"L", &CieLimits::L},
     {"a", &CieLimits::a},
     {"b", &CieLimits::b},
     {"C", &CieLimits::chroma},
     {"h", &CieLimits::hueAngle},
     {"deltaE00", &CieLimits::deltaE00}}};

/// The verdict on each CieGroup.
using CieJudgement = std::array<GroupJudgement, kCieGroupCount>;

/// Judges a CIE colour; without one, and for a value that it lacks (the hue of a grey), whatever is
/// asked fails without a margin. The sample's L*, a*, b* and `target` are of the same conditions:
/// the caller sees to it.
[[nodiscard]] CieJudgement JudgeCie(const std::optional<CieColour>& colour,
                                    const CieLimits& limits);

}  // namespace vexa

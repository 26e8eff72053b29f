// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <array>
#include <limits>
#include <optional>

#include "colour/cie_colour.h"
#include "colour/colour_difference.h"
#include "standards/judgement.h"
#include "standards/standard_set.h"

namespace vexa {

/// Limits of CIE values, beside the standard and judged apart from it; all off at first. A side
/// that is not limited is infinite.
struct CieLimits {
  static constexpr double kNone = std::numeric_limits<double>::infinity();

  StandardLimits luminousReflectance{false, kNone, -kNone};  ///< Rv, percent
  StandardLimits L{false, kNone, -kNone};
  StandardLimits a{false, kNone, -kNone};
  StandardLimits b{false, kNone, -kNone};
  StandardLimits chroma{false, kNone, -kNone};    ///< C*
  StandardLimits hueAngle{false, 360.0, 0.0};     ///< degrees; upper below lower: through 0
  StandardLimits deltaE00{false, kNone, -kNone};  ///< CIEDE2000 to `target`
  LabColour target;

  bool operator==(const CieLimits&) const = default;
};

/// What is judged, in the order of CieJudgement.
enum class CieGroup { kLuminousReflectance, kL, kA, kB, kChroma, kHueAngle, kDeltaE00 };
inline constexpr std::size_t kCieGroupCount = 7;

/// The limits of each CieGroup, under the name that files give them, and its symbol and unit for
/// readers.
struct CieLimitsEntry {
  const char* name;
  const char* symbol;
  const char* unit;
  StandardLimits CieLimits::*limits;
};
inline constexpr std::array<CieLimitsEntry, kCieGroupCount> kCieLimitsEntries{
    {{"Rv", "CIE Rv", " %", &CieLimits::luminousReflectance},
     {"L", "CIE L*", "", &CieLimits::L},
     {"a", "CIE a*", "", &CieLimits::a},
     {"b", "CIE b*", "", &CieLimits::b},
     {"C", "CIE C*", "", &CieLimits::chroma},
     {"h", "CIE h", "°", &CieLimits::hueAngle},
     {"deltaE00", "CIE ΔE00", "", &CieLimits::deltaE00}}};

/// The verdict on each CieGroup.
using CieJudgement = std::array<GroupJudgement, kCieGroupCount>;

/// Judges a CIE colour; without one, and for a value that it lacks (the hue of a grey), whatever is
/// asked fails without a margin. The sample's L*, a*, b* and `target` are of the same conditions:
/// the caller sees to it.
[[nodiscard]] CieJudgement JudgeCie(const std::optional<CieColour>& colour,
                                    const CieLimits& limits);

/// The amount of a group's margin, inside or outside, with its unit; empty without a margin.
[[nodiscard]] QString CieMarginText(const CieJudgement& judgement, std::size_t group);

/// The groups that failed, in their order, each as "CIE Rv:NG 0.031 %".
[[nodiscard]] QStringList CieFailures(const CieJudgement& judgement);

}  // namespace vexa

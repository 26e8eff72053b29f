// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/cie_limits.h"

#include <limits>

namespace vexa {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

double DeltaE00(const LabColour& target, const CieColour& colour) {
  ColourDifference difference;
  return CompareColours(target, {colour.L, colour.a, colour.b}, difference) ? difference.deltaE00
                                                                            : kNotANumber;
}

}  // namespace

CieJudgement JudgeCie(const std::optional<CieColour>& colour, const CieLimits& limits) {
  const auto judge = [&colour](const StandardLimits& asked, double CieColour::*value) {
    return JudgeValue(asked, colour ? (*colour).*value : kNotANumber);
  };
  return {judge(limits.luminousReflectance, &CieColour::Rv),
          judge(limits.L, &CieColour::L),
          judge(limits.a, &CieColour::a),
          judge(limits.b, &CieColour::b),
          judge(limits.chroma, &CieColour::C),
          JudgeHue(limits.hueAngle, colour ? colour->h : kNotANumber),
          JudgeValue(limits.deltaE00, colour ? DeltaE00(limits.target, *colour) : kNotANumber)};
}

}  // namespace vexa

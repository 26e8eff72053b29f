// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/cie_limits.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vexa {
namespace {

GroupJudgement Verdict(CieGroup group, const std::optional<CieColour>& colour,
                       const CieLimits& limits) {
  const CieJudgement judgement = JudgeCie(colour, limits);
  for (std::size_t i = 0; i < kCieGroupCount; ++i) {
    if (i != static_cast<std::size_t>(group)) {
      EXPECT_FALSE(judgement[i].passed) << "judges what was not asked: " << i;
    }
  }
  return judgement[static_cast<std::size_t>(group)];
}

TEST(JudgeCie, EachValueAgainstItsOwnLimits) {
  const CieColour colour{
      .Y = 99.0, .L = 2.5, .a = 4.0, .b = -1.0, .C = 4.123, .h = 345.96, .Rv = 0.3};
  const double none = std::nan("");
  const struct {
    CieGroup group;
    StandardLimits CieLimits::*limits;
    double lower, upper;
    bool passed;
    double margin;
  } cases[] = {
      {CieGroup::kLuminousReflectance, &CieLimits::luminousReflectance, 0.0, 0.4, true, 0.1},
      {CieGroup::kLuminousReflectance, &CieLimits::luminousReflectance, 0.0, 0.25, false, -0.05},
      {CieGroup::kL, &CieLimits::L, 2.5, 3.0, true, 0.0},
      {CieGroup::kA, &CieLimits::a, -5.0, 3.0, false, -1.0},
      {CieGroup::kB, &CieLimits::b, -3.0, 0.0, true, 1.0},
      {CieGroup::kChroma, &CieLimits::chroma, 0.0, 5.123, true, 1.0},
      {CieGroup::kA, &CieLimits::a, -CieLimits::kNone, 5.0, true, 1.0},
      {CieGroup::kHueAngle, &CieLimits::hueAngle, 340.0, 20.0, true, 5.96},
      {CieGroup::kHueAngle, &CieLimits::hueAngle, 350.0, 20.0, false, -4.04},
      {CieGroup::kHueAngle, &CieLimits::hueAngle, 10.0, 340.0, false, -5.96},
      {CieGroup::kHueAngle, &CieLimits::hueAngle, 0.0, 360.0, true, none},
  };
  for (const auto& c : cases) {
    CieLimits limits;
    limits.*c.limits = {true, c.upper, c.lower};
    const GroupJudgement verdict = Verdict(c.group, colour, limits);
    const auto place = &c - cases;
    EXPECT_EQ(verdict.passed, c.passed) << place;
    ASSERT_EQ(verdict.margin.has_value(), !std::isnan(c.margin)) << place;
    EXPECT_NEAR(verdict.margin.value_or(0.0), std::isnan(c.margin) ? 0.0 : c.margin, 1e-9) << place;

    const GroupJudgement missing = Verdict(c.group, std::nullopt, limits);
    EXPECT_EQ(missing.passed, false) << place;
    EXPECT_FALSE(missing.margin) << place;
  }
}

// The pair of Sharma, Wu and Dalal, Color Res. Appl. 30 (2005), Table I, line 25: 1.2644.
TEST(JudgeCie, DistanceToATargetAndHueOfAGrey) {
  const CieColour colour{.L = 60.4626, .a = -34.1751, .b = 39.4387};
  CieLimits limits;
  limits.target = {60.2574, -34.0099, 36.2677};
  for (const double most : {1.3, 1.2}) {
    limits.deltaE00 = {true, most, 0.0};
    const GroupJudgement verdict = Verdict(CieGroup::kDeltaE00, colour, limits);
    EXPECT_EQ(verdict.passed, most > 1.2644);
    EXPECT_NEAR(verdict.margin.value_or(9.0), most - 1.2644, 0.00005);
  }
  CieLimits hue;
  hue.hueAngle = {true, 20.0, 340.0};
  EXPECT_EQ(Verdict(CieGroup::kHueAngle, CieColour{.h = std::nan("")}, hue).passed, false);
}

}  // namespace
}  // namespace vexa

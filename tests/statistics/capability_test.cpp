// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/capability.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "statistics/control_chart.h"

namespace vexa::statistics {
namespace {

TEST(Capability, FollowsItsFormulas) {
  // Mean 10, ranges 2 2 2 2 2, s² = 6 / 5.
  const std::vector<double> values{9, 11, 9, 11, 9, 11};
  const auto both = ComputeCapability(values, {4.0, 13.0});
  ASSERT_TRUE(both);
  const double within = 2 / 1.1283791670955126;
  const double overall = std::sqrt(1.2);
  EXPECT_EQ(both->n, 6U);
  EXPECT_DOUBLE_EQ(both->sWithin, within);
  EXPECT_DOUBLE_EQ(both->sOverall, overall);
  EXPECT_DOUBLE_EQ(both->cp->value, 1.5 / within);
  EXPECT_DOUBLE_EQ(both->cpk.value, 1.0 / within);
  EXPECT_DOUBLE_EQ(both->pp->value, 1.5 / overall);
  EXPECT_DOUBLE_EQ(both->ppk.value, 1.0 / overall);
  // Chi-square, 5 degrees of freedom: 0.831212 and 12.832502 at 0.025 and 0.975.
  EXPECT_NEAR(both->pp->interval.lower, 1.5 / overall * std::sqrt(0.831212 / 5), 1e-6);
  EXPECT_NEAR(both->pp->interval.upper, 1.5 / overall * std::sqrt(12.832502 / 5), 1e-6);
  const double reach = 1.959964 * std::sqrt(1 / 54.0 + 1 / 1.2 / 10);
  EXPECT_NEAR(both->ppk.interval.lower, 1.0 / overall - reach, 1e-6);
  EXPECT_NEAR(both->ppk.interval.upper, 1.0 / overall + reach, 1e-6);
  const auto below = [](double z) { return 0.5 * std::erfc(-z / std::sqrt(2.0)); };
  EXPECT_NEAR(both->expectedOutside, below(-3 / overall) + below(-6 / overall), 1e-15);

  const auto lower = ComputeCapability(values, {12.0, {}});
  ASSERT_TRUE(lower);
  EXPECT_FALSE(lower->cp || lower->pp);
  EXPECT_DOUBLE_EQ(lower->cpk.value, -2 / (3 * within));
  EXPECT_NEAR(lower->expectedOutside, below(2 / overall), 1e-12);
  const auto upper = ComputeCapability(values, {{}, 12.0});
  ASSERT_TRUE(upper);
  EXPECT_DOUBLE_EQ(upper->cpk.value, 2 / (3 * within));
  EXPECT_NEAR(upper->expectedOutside, below(-2 / overall), 1e-12);
}

// The bounds of Cp over Cp do not depend on the values, only on how many there are.
Interval RelativeInterval(std::size_t n, bool within) {
  std::vector<double> values(n, 9.0);
  for (std::size_t i = 0; i < n; i += 2) {
    values[i] = 11.0;
  }
  const auto capability = ComputeCapability(values, {4.0, 13.0});
  if (!capability) {
    return {};
  }
  const CapabilityIndex& index = within ? *capability->cp : *capability->pp;
  return {index.interval.lower / index.value, index.interval.upper / index.value};
}

TEST(Capability, HoldsForManyValues) {
  // Chi-square, 20,000 degrees of freedom: 19609.9049 and 20393.8836; beyond, s is normally
  // distributed with a relative deviation of 1 / sqrt(2 n).
  const double reach = 1.959964 * std::sqrt(0.5e-6);
  const struct {
    std::size_t n;
    double lower;
    double upper;
  } cases[] = {
      {20001, std::sqrt(19609.9049 / 20000), std::sqrt(20393.8836 / 20000)},
      {1000000, 1 - reach, 1 + reach},
  };
  for (const auto& c : cases) {
    const Interval interval = RelativeInterval(c.n, false);
    EXPECT_NEAR(interval.lower, c.lower, 1e-6) << c.n;
    EXPECT_NEAR(interval.upper, c.upper, 1e-6) << c.n;
  }
}

TEST(Capability, MissesTheTrueCpAboutAsOftenOnEitherSide) {
  constexpr int kSamples = 20000;
  constexpr double kMostOff = 0.9;  // percent; a mean range is only nearly chi-distributed
  std::mt19937_64 generator(1);
  std::normal_distribution<double> normal;
  for (const std::size_t n : {10U, 25U}) {
    const Interval interval = RelativeInterval(n, true);
    std::vector<double> values(n);
    int below = 0;
    int above = 0;
    for (int sample = 0; sample < kSamples; ++sample) {
      for (double& value : values) {
        value = normal(generator);
      }
      // sWithin over the true sigma of 1, which is the true Cp over that of the sample.
      const double ratio = MeanMovingRange(values) / 1.1283791670955126;
      below += ratio < interval.lower ? 1 : 0;
      above += ratio > interval.upper ? 1 : 0;
    }
    EXPECT_NEAR(100.0 * below / kSamples, 2.5, kMostOff) << n;
    EXPECT_NEAR(100.0 * above / kSamples, 2.5, kMostOff) << n;
  }
}

TEST(Capability, RefusesWhatHasNoIndex) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const std::vector<double> values{1, 2, 3};
  const struct {
    std::vector<double> values;
    SpecificationLimits limits;
    Refusal why;
  } cases[] = {
      {{1}, {0.0, 1.0}, Refusal::kTooFewValues},
      {{1, kNan}, {0.0, 1.0}, Refusal::kNotANumber},
      {{5, 5, 5}, {0.0, 1.0}, Refusal::kNoSpread},
      {values, {}, Refusal::kMissingLimit},
      {values, {2.0, 2.0}, Refusal::kLimitsReversed},
      {values, {2.0, 1.0}, Refusal::kLimitsReversed},
      {values, {kNan, 1.0}, Refusal::kNotANumber},
      {values, {{}, std::numeric_limits<double>::infinity()}, Refusal::kNotANumber},
  };
  for (const auto& c : cases) {
    const auto capability = ComputeCapability(c.values, c.limits);
    ASSERT_FALSE(capability) << static_cast<int>(c.why);
    EXPECT_EQ(capability.Why(), c.why);
  }
  const auto huge = ComputeCapability(std::vector<double>{0, 1e-99}, {-1e100, 1e100});
  ASSERT_TRUE(huge);
  EXPECT_TRUE(std::isfinite(huge->cpk.interval.upper) && std::isfinite(huge->cp->interval.upper));
}

}  // namespace
}  // namespace vexa::statistics

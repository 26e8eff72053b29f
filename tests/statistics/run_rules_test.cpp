// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/run_rules.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "statistics/control_chart.h"

namespace vexa::statistics {
namespace {

using Points = std::vector<double>;

Points operator+(Points points, const Points& more) {
  points.insert(points.end(), more.begin(), more.end());
  return points;
}

Points Alternating(std::size_t count) {
  Points points;
  for (std::size_t i = 0; i < count; ++i) {
    points.push_back(i % 2 == 0 ? 0.5 : 0.7);
  }
  return points;
}

// Each rule by itself: a sequence one point short of its pattern, and the points that complete it,
// on both sides of the centre line.
TEST(RunRules, SignalAtThePointThatCompletesThePattern) {
  const auto western = WesternElectricRules();
  const auto nelson = NelsonRules();
  const struct {
    RunRule rule;
    Points points;
    std::vector<std::size_t> indices;
  } cases[] = {
      {western[0], {3.0, 2.9, 0}, {}},
      {western[0], {0, 3.01, 0}, {2}},
      {western[1], {2.1, 0, 0, 2.1}, {}},     // two of four
      {western[1], {2.1, 0, 2.0}, {}},        // on the line is not beyond it
      {western[1], {2.1, 0, -2.1}, {}},       // not the same side
      {western[1], {2.1, 2.1, 0.5, 0}, {2}},  // once, not again at the third
      {western[1], {0, 2.1, 2.1}, {3}},
      {western[2], {1.1, 1.1, 1.1, 0, 0, 1.1}, {}},
      {western[2], {1.1, 1.1, 1.1, 0, -1.1}, {}},
      {western[2], {1.1, 1.1, 1.1, 0, 1.1}, {5}},
      {western[2], {0, 1.1, 1.1, 1.1, 1.1}, {5}},
      {western[3], Points(7, 0.1) + Points{0.0, 0.1}, {}},  // on the centre line: neither side
      {western[3], Points(7, 0.1) + Points{-0.1}, {}},
      {western[3], Points(9, 0.1), {8, 9}},
      {nelson[0], {0, 3.01}, {2}},
      {nelson[1], Points(8, 0.1) + Points{-0.1, 0.1}, {}},
      {nelson[1], Points(9, 0.1), {9}},
      {nelson[2], {0, 1, 2, 3, 4, 4, 5}, {}},
      {nelson[2], {0, 1, 2, 3, 4, 3.9}, {}},
      {nelson[2], {5, 0, 1, 2, 3, 4, 5, 6}, {7, 8}},
      {nelson[3], Alternating(13) + Points{0.5}, {}},
      {nelson[3], Alternating(13) + Points{0.4}, {}},
      {nelson[3], Points{0.6} + Alternating(14), {14, 15}},
      {nelson[4], {2.1, 0, 2.1}, {3}},
      {nelson[5], {1.1, 1.1, 0, 1.1, 1.1}, {5}},
      {nelson[6], Points(14, 0.9) + Points{1.1}, {}},
      {nelson[6], Points(7, 0.9) + Points(7, -0.9) + Points{1.0}, {15}},
      {nelson[7], Points(4, 1.1) + Points(3, -1.1) + Points{1.0}, {}},
      {nelson[7], Points(4, 1.1) + Points(4, -1.1), {8}},
  };
  for (const auto& c : cases) {
    for (const double side : {1.0, -1.0}) {
      Points points = c.points;
      for (double& point : points) {
        point *= side;
      }
      std::vector<Signal> expected;
      for (const std::size_t index : c.indices) {
        expected.push_back({index, c.rule.number});
      }
      EXPECT_EQ(FindSignals(points, std::span(&c.rule, 1)), expected)
          << RuleText(c.rule).toStdString() << testing::PrintToString(points);
    }
  }
}

TEST(RunRules, FalseAlarmsComeAsSeldomAsPublished) {
  // Champ and Woodall, "Exact results for Shewhart control charts with supplementary runs rules",
  // Technometrics 29 (1987): in control, all four rules signal after 91.75 points on average.
  constexpr int kRuns = 5000;
  std::mt19937_64 generator(1);
  std::normal_distribution<double> normal;
  Points points;
  long total = 0;
  for (int run = 0; run < kRuns; ++run) {
    points.clear();
    bool signal = false;
    while (!signal) {
      points.push_back(normal(generator));
      for (const RunRule& rule : WesternElectricRules()) {
        signal = signal || CompletesPattern(rule, points);
      }
      ++total;
    }
  }
  EXPECT_NEAR(static_cast<double>(total) / kRuns, 91.75, 0.02 * 91.75);
}

TEST(ControlChart, DrawsItsLinesFromTheBaseline) {
  const std::vector<double> values{10, 12, 11, 13, 11, 30, 11};
  const auto limits = ComputeLimits(std::span(values).first(5));
  ASSERT_TRUE(limits);
  EXPECT_DOUBLE_EQ(limits->centre, 11.4);
  EXPECT_DOUBLE_EQ(limits->meanRange, 1.75);
  EXPECT_DOUBLE_EQ(limits->lower, 11.4 - 2.66 * 1.75);
  EXPECT_DOUBLE_EQ(limits->upper, 11.4 + 2.66 * 1.75);
  EXPECT_DOUBLE_EQ(limits->upperRange, 3.267 * 1.75);
  const auto found = JudgeValues(*limits, values, WesternElectricRules());
  ASSERT_TRUE(found);
  EXPECT_EQ(*found, (std::vector<Signal>{{6, 1}}));
  EXPECT_EQ(WideRanges(*limits, values), (std::vector<std::size_t>{6, 7}));
  EXPECT_EQ(WideRanges(*limits, Points{0, 5.71, 11.43}), (std::vector<std::size_t>{3}));

  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(JudgeValues(*limits, Points{1, kNan}, NelsonRules()).Why(), Refusal::kNotANumber);
  EXPECT_EQ(ComputeLimits(Points{1, kNan}).Why(), Refusal::kNotANumber);
  EXPECT_EQ(ComputeLimits(Points{1}).Why(), Refusal::kTooFewValues);
  EXPECT_EQ(ComputeLimits(Points{2, 2, 2}).Why(), Refusal::kNoSpread);
}

}  // namespace
}  // namespace vexa::statistics

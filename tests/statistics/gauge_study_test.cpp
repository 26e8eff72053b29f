// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/gauge_study.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/published_statistics.h"

namespace vexa::statistics {
namespace {

// A value for each part (rows) and operator, measured twice, `noise` below and above it.
std::vector<GaugeReading> Readings(const std::vector<std::vector<double>>& cells, double noise) {
  std::vector<GaugeReading> readings;
  for (std::size_t part = 0; part < cells.size(); ++part) {
    for (std::size_t by = 0; by < cells[part].size(); ++by) {
      for (const double sign : {-1.0, 1.0}) {
        readings.push_back(
            {static_cast<int>(part), static_cast<int>(by), cells[part][by] + sign * noise});
      }
    }
  }
  return readings;
}

TEST(GaugeStudy, HasThePublishedFigures) {
  std::vector<GaugeReading> readings = test::PublishedGaugeStudy();
  std::ranges::reverse(readings);
  const auto study = AnalyseGauge(readings, 10.0);
  ASSERT_TRUE(study);
  EXPECT_TRUE(study->pooled);
  EXPECT_NEAR(study->repeatability, 0.199933, 5e-7);
  EXPECT_NEAR(study->reproducibility, 0.226838, 5e-7);
  EXPECT_EQ(study->interaction, 0);
  EXPECT_NEAR(study->grr, 0.302372, 5e-7);
  EXPECT_NEAR(study->part, 1.042327, 5e-7);
  EXPECT_NEAR(study->percentGrr, 27.86, 5e-3);
  EXPECT_NEAR(*study->percentTolerance, 18.14, 5e-3);
  EXPECT_EQ(study->ndc, 4);

  // Degrees of freedom, sum of squares, F and p of the interaction as the manual prints them; the
  // F of the first two against the pooled error.
  const struct {
    VarianceSource source;
    double df;
    double ss;
    std::optional<double> f;
    std::optional<double> p;
  } rows[] = {
      {VarianceSource::kPart, 9, 88.3619, 245.614, 0.0},
      {VarianceSource::kOperator, 2, 3.1673, 39.617, 0.0},
      {VarianceSource::kInteraction, 18, 0.3590, 0.434, 0.974},
      {VarianceSource::kRepeatability, 60, 2.7589, {}, {}},
      {VarianceSource::kPooled, 78, 3.1179, {}, {}},
      {VarianceSource::kTotal, 89, 94.6471, {}, {}},
  };
  ASSERT_EQ(study->table.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const VarianceRow& row = study->table[i];
    EXPECT_EQ(row.source, rows[i].source);
    EXPECT_EQ(row.df, rows[i].df) << i;
    EXPECT_NEAR(row.ss, rows[i].ss, 5.1e-5) << i;
    ASSERT_EQ(row.f.has_value(), rows[i].f.has_value()) << i;
    ASSERT_EQ(row.p.has_value(), rows[i].p.has_value()) << i;
    if (row.f) {
      EXPECT_NEAR(*row.f, *rows[i].f, 5.1e-4) << i;
      EXPECT_NEAR(*row.p, *rows[i].p, 5.1e-4) << i;
    }
  }
}

TEST(GaugeStudy, KeepsAnInteractionThatCounts) {
  // Means: parts 2, 5; operators 4, 3; each cell is 1 off what they say together. By hand: mean
  // squares part 18, operator 2, interaction 8, repeatability 0.02.
  const auto study = AnalyseGauge(Readings({{3.5, 0.5}, {4.5, 5.5}}, 0.1));
  ASSERT_TRUE(study);
  EXPECT_FALSE(study->pooled);
  EXPECT_NEAR(study->repeatability, std::sqrt(0.02), 1e-12);
  EXPECT_NEAR(study->interaction, std::sqrt((8 - 0.02) / 2), 1e-12);
  EXPECT_EQ(study->reproducibility, 0);  // 2 is below 8
  EXPECT_NEAR(study->part, std::sqrt((18.0 - 8.0) / 4), 1e-12);
  EXPECT_NEAR(study->grr, std::sqrt(0.02 + 3.99), 1e-12);
  EXPECT_FALSE(study->percentTolerance);
  EXPECT_EQ(study->table.size(), 5U);
  EXPECT_NEAR(*study->table[0].f, 18.0 / 8, 1e-12);  // against the interaction
}

TEST(GaugeStudy, NeverGivesWhatIsNoNumber) {
  // A gauge without any spread of its own: parts and operators alone, or an interaction too.
  for (const auto& cells : {std::vector<std::vector<double>>{{1, 2}, {3, 4}},
                            {{1, 2}, {3, 9}},
                            {{1, 1}, {2, 2}},
                            {{1, 2}, {1, 2}}}) {
    const auto study = AnalyseGauge(Readings(cells, 0.0), 1e-100);
    ASSERT_TRUE(study);
    EXPECT_TRUE(std::isfinite(study->percentGrr) && std::isfinite(*study->percentTolerance));
    for (const VarianceRow& row : study->table) {
      EXPECT_TRUE(std::isfinite(row.f.value_or(0)) && std::isfinite(row.p.value_or(0)));
    }
  }
  const auto perfect = AnalyseGauge(Readings({{1, 1}, {2, 2}}, 0.0));
  ASSERT_TRUE(perfect);
  EXPECT_EQ(perfect->percentGrr, 0);
  EXPECT_FALSE(perfect->ndc);
  EXPECT_TRUE(perfect->pooled);
  const auto nearlyPerfect = AnalyseGauge(Readings({{0, 0}, {1e12, 1e12}}, 1e-3));
  ASSERT_TRUE(nearlyPerfect);
  EXPECT_FALSE(nearlyPerfect->ndc);
}

TEST(GaugeStudy, RefusesATableWithHoles) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const std::vector<GaugeReading> whole = Readings({{1, 2}, {3, 5}}, 0.1);
  std::vector<GaugeReading> short1 = whole;
  short1.pop_back();
  std::vector<GaugeReading> moved = whole;
  moved.back().gaugeOperator = 0;
  std::vector<GaugeReading> everyPartItsOwn = whole;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    everyPartItsOwn[i].part = static_cast<int>(i);
  }
  const std::vector<GaugeReading> once{{0, 0, 1}, {0, 1, 2}, {1, 0, 3}, {1, 1, 4}};
  const struct {
    std::vector<GaugeReading> readings;
    std::optional<double> tolerance;
    Refusal why;
  } cases[] = {
      {{}, {}, Refusal::kTooFewGroups},
      {Readings({{1, 2}}, 0.1), {}, Refusal::kTooFewGroups},
      {Readings({{1}, {2}}, 0.1), {}, Refusal::kTooFewGroups},
      {once, {}, Refusal::kTooFewGroups},
      {short1, {}, Refusal::kUnbalanced},
      {moved, {}, Refusal::kUnbalanced},
      {everyPartItsOwn, {}, Refusal::kUnbalanced},
      {Readings({{1, 2}, {3, kNan}}, 0.1), {}, Refusal::kNotANumber},
      {Readings({{2, 2}, {2, 2}}, 0.0), {}, Refusal::kNoSpread},
      {whole, 0.0, Refusal::kArgument},
      {whole, kNan, Refusal::kArgument},
  };
  for (const auto& c : cases) {
    const auto study = AnalyseGauge(c.readings, c.tolerance);
    ASSERT_FALSE(study) << static_cast<int>(c.why);
    EXPECT_EQ(study.Why(), c.why);
  }
}

}  // namespace
}  // namespace vexa::statistics

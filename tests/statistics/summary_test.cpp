// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/summary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "statistics/spectrum_statistics.h"
#include "support/published_statistics.h"

namespace vexa::statistics {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

double CorrectDigits(double value, double certified) {
  return value == certified ? 15.0 : -std::log10(std::abs(value / certified - 1.0));
}

TEST(Summary, HasTheCertifiedDigits) {
  for (const test::CertifiedSet& set : test::CertifiedSets()) {
    const auto summary = Summarise(set.values);
    ASSERT_TRUE(summary) << set.name;
    // A value that is a double has 15 digits, and its deviation from the mean fewer, by as many as
    // the mean has before them.
    const double spreadDigits = std::min(15.0 - std::log10(std::abs(set.mean) / set.s), 14.5);
    EXPECT_GE(CorrectDigits(summary->mean, set.mean), 14.5) << set.name;
    EXPECT_GE(CorrectDigits(summary->s, set.s), spreadDigits) << set.name;
    ASSERT_TRUE(summary->lag1) << set.name;
    EXPECT_GE(CorrectDigits(*summary->lag1, set.lag1), spreadDigits) << set.name;
  }
}

TEST(Summary, DescribesTheValues) {
  // Student's distribution, 4 degrees of freedom: t(0.975) = 2.776445105.
  const auto odd = Summarise(std::vector<double>{5, 1, 4, 2, 8});
  ASSERT_TRUE(odd);
  EXPECT_EQ(odd->n, 5U);
  EXPECT_EQ(odd->min, 1);
  EXPECT_EQ(odd->max, 8);
  EXPECT_EQ(odd->median, 4);
  EXPECT_DOUBLE_EQ(odd->standardError, std::sqrt(7.5 / 5.0));
  EXPECT_NEAR(odd->interval.lower, 4 - 2.776445105 * std::sqrt(1.5), 1e-8);
  EXPECT_NEAR(odd->interval.upper, 4 + 2.776445105 * std::sqrt(1.5), 1e-8);

  const auto even = Summarise(std::vector<double>{4, 1, 2, 8});
  ASSERT_TRUE(even);
  EXPECT_EQ(even->median, 3);

  const auto equal = Summarise(std::vector<double>(7, 0.1));
  ASSERT_TRUE(equal);
  EXPECT_EQ(equal->mean, 0.1);
  EXPECT_EQ(equal->s, 0);
  EXPECT_EQ(equal->interval.upper, 0.1);
  EXPECT_FALSE(equal->lag1);
}

TEST(Summary, RefusesWhatItCannotDescribe) {
  const struct {
    std::vector<double> values;
    double confidence;
    Refusal why;
  } cases[] = {
      {{}, 0.95, Refusal::kTooFewValues},         {{1}, 0.95, Refusal::kTooFewValues},
      {{1, kNan, 2}, 0.95, Refusal::kNotANumber}, {{1, -kInf}, 0.95, Refusal::kNotANumber},
      {{1, 1.1e100}, 0.95, Refusal::kNotANumber}, {{1, 2}, 1.0, Refusal::kArgument},
      {{1, 2}, kNan, Refusal::kArgument},
  };
  for (const auto& c : cases) {
    const auto summary = Summarise(c.values, c.confidence);
    ASSERT_FALSE(summary) << testing::PrintToString(c.values);
    EXPECT_EQ(summary.Why(), c.why) << testing::PrintToString(c.values);
  }
  EXPECT_TRUE(Summarise(std::vector<double>{1e100, -1e100}));
}

ReflectanceSpectrum Flat(double percent) {
  ReflectanceSpectrum spectrum;
  std::ranges::fill(spectrum.Values(), percent);
  return spectrum;
}

TEST(SpectrumStatistics, StandAtEveryWavelength) {
  std::vector<ReflectanceSpectrum> spectra{Flat(1), Flat(2), Flat(6)};
  spectra[2][840] = 0;
  const auto statistics = ComputeSpectrumStatistics(spectra);
  ASSERT_TRUE(statistics);
  EXPECT_EQ(statistics->n, 3U);
  EXPECT_DOUBLE_EQ(statistics->mean[440], 3);
  EXPECT_DOUBLE_EQ(statistics->s[440], std::sqrt(7));
  EXPECT_EQ(statistics->lower[839], 1);
  EXPECT_EQ(statistics->upper[839], 6);
  EXPECT_DOUBLE_EQ(statistics->s[840], 1);
  EXPECT_EQ(statistics->lower[840], 0);
  EXPECT_EQ(statistics->upper[840], 2);
  EXPECT_DOUBLE_EQ(statistics->MeanS(), std::sqrt((400 * 7.0 + 1.0) / 401));

  spectra[1][600] = kNan;
  EXPECT_EQ(ComputeSpectrumStatistics(spectra).Why(), Refusal::kNotANumber);
  spectra.resize(1);
  EXPECT_EQ(ComputeSpectrumStatistics(spectra).Why(), Refusal::kTooFewValues);
}

TEST(SpectrumStatistics, TellWithinFromBetweenSeries) {
  using Series = std::vector<std::vector<ReflectanceSpectrum>>;
  // Within: variances 2 and 2. The means 1 and 5 have a variance of 8, of which 2 / 2 is from
  // within.
  const auto apart = ComputeRepeatability(Series{{Flat(0), Flat(2)}, {Flat(4), Flat(6)}});
  ASSERT_TRUE(apart);
  EXPECT_DOUBLE_EQ(apart->repeatability[640], std::sqrt(2));
  EXPECT_DOUBLE_EQ(apart->reproducibility[640], std::sqrt(2 + 7));
  const auto alike = ComputeRepeatability(Series{{Flat(0), Flat(2)}, {Flat(0), Flat(2)}});
  ASSERT_TRUE(alike);
  EXPECT_DOUBLE_EQ(alike->reproducibility[640], std::sqrt(2));

  EXPECT_EQ(ComputeRepeatability(Series{{Flat(0), Flat(2)}}).Why(), Refusal::kTooFewGroups);
  EXPECT_EQ(ComputeRepeatability(Series{{Flat(0)}, {Flat(2)}}).Why(), Refusal::kTooFewValues);
  EXPECT_EQ(ComputeRepeatability(Series{{Flat(0), Flat(2)}, {Flat(2)}}).Why(),
            Refusal::kUnbalanced);
}

}  // namespace
}  // namespace vexa::statistics

// SPDX-License-Identifier: GPL-3.0-or-later
// Compares the statistics with certified and published values, and simulates how often the run
// rules give a false alarm and how often the intervals hold the truth. Prints the tables of
// docs/accuracy.md; the exit status is 1 when a figure leaves its limit.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

#include "statistics/capability.h"
#include "statistics/run_rules.h"
#include "statistics/summary.h"
#include "support/published_statistics.h"

namespace vexa::statistics {
namespace {

constexpr unsigned kSeed = 1;

// The log of the relative error, as NIST compares programs; 15 for equal to the last digit.
double CorrectDigits(double value, double certified) {
  const double error = std::abs(value / certified - 1.0);
  return error == 0.0 ? 15.0 : std::min(-std::log10(error), 15.0);
}

// As many digits as doubles leave to the deviations from the mean of a set.
bool PrintCertified() {
  std::printf("| set | values | digits of the mean | of s | of lag 1 | limit of the last two |\n");
  std::printf("|---|---|---|---|---|---|\n");
  bool good = true;
  for (const test::CertifiedSet& set : test::CertifiedSets()) {
    const auto summary = Summarise(set.values);
    if (!summary || !summary->lag1) {
      return false;
    }
    const double limit = std::min(15.0 - std::log10(std::abs(set.mean) / set.s), 14.5);
    const double s = CorrectDigits(summary->s, set.s);
    const double lag1 = CorrectDigits(*summary->lag1, set.lag1);
    std::printf("| %s | %zu | %.1f | %.1f | %.1f | %.1f |\n", set.name.c_str(), set.values.size(),
                CorrectDigits(summary->mean, set.mean), s, lag1, limit);
    good = good && s >= limit && lag1 >= limit;
  }
  return good;
}

bool PrintGauge() {
  const auto study = AnalyseGauge(test::PublishedGaugeStudy());
  if (!study) {
    return false;
  }
  const struct {
    const char* name;
    double value;
    double published;
    double rounding;
  } rows[] = {
      {"repeatability (EV)", study->repeatability, 0.199933, 5e-7},
      {"reproducibility (AV)", study->reproducibility, 0.226838, 5e-7},
      {"gauge (GRR)", study->grr, 0.302372, 5e-7},
      {"parts (PV)", study->part, 1.042327, 5e-7},
      {"gauge, % of the total", study->percentGrr, 27.86, 5e-3},
      {"distinct categories", static_cast<double>(study->ndc.value_or(0)), 4, 0},
  };
  std::printf("\n| | computed | published |\n|---|---|---|\n");
  bool good = true;
  for (const auto& row : rows) {
    std::printf("| %s | %.9g | %.7g |\n", row.name, row.value, row.published);
    good = good && std::abs(row.value - row.published) <= row.rounding;
  }
  return good;
}

// Points of a process in control until the first signal, on average over `runs`.
double RunLength(std::span<const RunRule> rules, int runs, std::mt19937_64& generator) {
  std::normal_distribution<double> normal;
  std::vector<double> points;
  double total = 0.0;
  for (int run = 0; run < runs; ++run) {
    points.clear();
    bool signal = false;
    while (!signal) {
      points.push_back(normal(generator));
      signal = std::ranges::any_of(
          rules, [&points](const RunRule& rule) { return CompletesPattern(rule, points); });
    }
    total += static_cast<double>(points.size());
  }
  return total / runs;
}

bool PrintRunLengths() {
  constexpr int kRuns = 50000;
  constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
  const auto western = WesternElectricRules();
  const struct {
    const char* name;
    std::span<const RunRule> rules;
    double published;
  } rows[] = {
      {"Western Electric 1", western.first(1), 370.4},
      {"Western Electric 1, 2", western.first(2), 225.44},
      {"Western Electric 1 to 4", western, 91.75},
      {"Nelson 1 to 8", NelsonRules(), kUnknown},
  };
  std::printf(
      "\n| rules | points to a false alarm | published | deviation %% |\n|---|---|---|---|\n");
  bool good = true;
  for (const auto& row : rows) {
    std::mt19937_64 generator(kSeed);
    const double length = RunLength(row.rules, kRuns, generator);
    std::printf("| %s | %.2f |", row.name, length);
    if (std::isnan(row.published)) {
      std::printf(" | |\n");
      continue;
    }
    const double deviation = 100.0 * (length / row.published - 1.0);
    std::printf(" %.2f | %+.2f |\n", row.published, deviation);
    good = good && std::abs(deviation) <= 2.0;
  }
  return good;
}

bool Holds(const Interval& interval, double truth) {
  return interval.lower <= truth && truth <= interval.upper;
}

// Standard normal values, limits -3 and 5.
bool PrintCoverage() {
  constexpr int kSamples = 20000;
  const SpecificationLimits limits{-3.0, 5.0};
  constexpr double kTrueWidth = 8.0 / 6.0;
  constexpr double kTrueNearest = 3.0 / 3.0;
  std::printf(
      "\n| n | mean | Cp | Cpk | Pp | Ppk | Cp as if of n - 1 |\n|---|---|---|---|---|---|---|\n");
  bool good = true;
  for (const std::size_t n : {10U, 20U, 30U, 50U, 100U, 200U}) {
    std::mt19937_64 generator(kSeed);
    std::normal_distribution<double> normal;
    std::vector<double> values(n);
    double held[5] = {};
    double heldByPp = 0.0;
    for (int sample = 0; sample < kSamples; ++sample) {
      for (double& value : values) {
        value = normal(generator);
      }
      const auto summary = Summarise(values);
      const auto capability = ComputeCapability(values, limits);
      if (!summary || !capability) {
        return false;
      }
      const bool holds[] = {Holds(summary->interval, 0.0),
                            Holds(capability->cp->interval, kTrueWidth),
                            Holds(capability->cpk.interval, kTrueNearest),
                            Holds(capability->pp->interval, kTrueWidth),
                            Holds(capability->ppk.interval, kTrueNearest)};
      for (std::size_t i = 0; i < std::size(held); ++i) {
        held[i] += holds[i] ? 100.0 / kSamples : 0.0;
      }
      // The interval that Cp would have if sWithin had the degrees of freedom of sOverall.
      const double scale = capability->cp->value / capability->pp->value;
      const Interval& ofPp = capability->pp->interval;
      heldByPp +=
          Holds({ofPp.lower * scale, ofPp.upper * scale}, kTrueWidth) ? 100.0 / kSamples : 0.0;
    }
    std::printf("| %zu |", n);
    for (const double percent : held) {
      std::printf(" %.1f |", percent);
      good = good && std::abs(percent - 95.0) <= 1.5;
    }
    std::printf(" %.1f |\n", heldByPp);
  }
  return good;
}

}  // namespace
}  // namespace vexa::statistics

int main() {
  using namespace vexa::statistics;
  const bool good[] = {PrintCertified(), PrintGauge(), PrintRunLengths(), PrintCoverage()};
  return std::ranges::all_of(good, [](bool each) { return each; }) ? 0 : 1;
}

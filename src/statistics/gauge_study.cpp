// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/gauge_study.h"

#include <algorithm>
#include <cmath>

#include "statistics/distributions.h"
#include "statistics/moments.h"

namespace vexa::statistics {
namespace {

constexpr double kPoolAbove = 0.25;
constexpr double kLeastTolerance = 1e-100;
constexpr double kGreatestTolerance = 1e100;

// The readings as whole numbers from 0 and values, and how many there are of each.
struct CrossedTable {
  std::size_t parts = 0;
  std::size_t operators = 0;
  std::size_t trials = 0;
  std::vector<std::size_t> part;
  std::vector<std::size_t> gaugeOperator;
  std::vector<double> values;

  [[nodiscard]] std::size_t Cell(std::size_t i) const {
    return part[i] * operators + gaugeOperator[i];
  }
};

// Turns labels into numbers from 0; the number of different ones.
std::size_t Enumerate(std::vector<std::size_t>& numbers, std::span<const GaugeReading> readings,
                      int GaugeReading::*label) {
  std::vector<int> labels;
  for (const GaugeReading& reading : readings) {
    labels.push_back(reading.*label);
  }
  std::ranges::sort(labels);
  labels.erase(std::unique(labels.begin(), labels.end()), labels.end());
  for (const GaugeReading& reading : readings) {
    numbers.push_back(static_cast<std::size_t>(std::ranges::lower_bound(labels, reading.*label) -
                                               labels.begin()));
  }
  return labels.size();
}

Result<CrossedTable> Cross(std::span<const GaugeReading> readings) {
  CrossedTable table;
  for (const GaugeReading& reading : readings) {
    table.values.push_back(reading.value);
  }
  if (!AreNumbers(table.values)) {
    return Refusal::kNotANumber;
  }
  table.parts = Enumerate(table.part, readings, &GaugeReading::part);
  table.operators = Enumerate(table.gaugeOperator, readings, &GaugeReading::gaugeOperator);
  const std::size_t cells = table.parts * table.operators;
  if (table.parts < 2 || table.operators < 2) {
    return Refusal::kTooFewGroups;
  }
  // Before the cells are counted: there may be more of them than memory.
  table.trials = readings.size() / cells;
  if (readings.size() % cells != 0) {
    return Refusal::kUnbalanced;
  }
  std::vector<std::size_t> counts(cells);
  for (std::size_t i = 0; i < readings.size(); ++i) {
    ++counts[table.Cell(i)];
  }
  if (std::ranges::any_of(counts, [&table](std::size_t n) { return n != table.trials; })) {
    return Refusal::kUnbalanced;
  }
  if (table.trials < 2) {
    return Refusal::kTooFewGroups;
  }
  return table;
}

struct SumsOfSquares {
  long double part = 0;
  long double gaugeOperator = 0;
  long double interaction = 0;
  long double repeatability = 0;
};

// From the deviations themselves, never as a difference of large sums.
SumsOfSquares ComputeSums(const CrossedTable& table) {
  using Means = std::vector<long double>;
  const auto p = static_cast<long double>(table.parts);
  const auto o = static_cast<long double>(table.operators);
  const auto r = static_cast<long double>(table.trials);
  const long double grand = ComputeMoments(table.values).mean;
  Means cell(table.parts * table.operators);
  for (std::size_t i = 0; i < table.values.size(); ++i) {
    cell[table.Cell(i)] += (table.values[i] - grand) / r;
  }
  Means part(table.parts);
  Means gaugeOperator(table.operators);
  for (std::size_t i = 0; i < cell.size(); ++i) {
    part[i / table.operators] += cell[i] / o;
    gaugeOperator[i % table.operators] += cell[i] / p;
  }
  SumsOfSquares sums;
  for (const long double mean : part) {
    sums.part += o * r * mean * mean;
  }
  for (const long double mean : gaugeOperator) {
    sums.gaugeOperator += p * r * mean * mean;
  }
  for (std::size_t i = 0; i < cell.size(); ++i) {
    const long double rest =
        cell[i] - part[i / table.operators] - gaugeOperator[i % table.operators];
    sums.interaction += r * rest * rest;
  }
  for (std::size_t i = 0; i < table.values.size(); ++i) {
    const long double rest = table.values[i] - grand - cell[table.Cell(i)];
    sums.repeatability += rest * rest;
  }
  // What the rounding of the readings leaves is no spread.
  const double dust =
      static_cast<double>(table.values.size()) * std::pow(RoundingOf(table.values), 2);
  for (long double SumsOfSquares::*term :
       {&SumsOfSquares::part, &SumsOfSquares::gaugeOperator, &SumsOfSquares::interaction,
        &SumsOfSquares::repeatability}) {
    sums.*term = sums.*term > dust ? sums.*term : 0;
  }
  return sums;
}

struct Term {
  VarianceSource source;
  double df;
  double ss;

  [[nodiscard]] double Ms() const { return ss / df; }
};

Term MakeTerm(VarianceSource source, std::size_t df, long double ss) {
  return {source, static_cast<double>(df), static_cast<double>(ss)};
}

struct FTest {
  std::optional<double> f;
  std::optional<double> p;
};

// Without spread in the denominator F is beyond any number, or nothing when there is none at all.
FTest TestAgainst(const Term& term, const Term& error) {
  if (const double f = term.Ms() / error.Ms(); std::isfinite(f)) {
    return {f, FAbove(f, term.df, error.df)};
  }
  return {{}, term.Ms() > 0.0 ? std::optional(0.0) : std::nullopt};
}

VarianceRow Row(const Term& term, const FTest& test = {}) {
  return {term.source, term.df, term.ss, term.Ms(), test.f, test.p};
}

double Component(const Term& term, const Term& error, std::size_t readingsPerLevel) {
  return std::sqrt(std::max(term.Ms() - error.Ms(), 0.0) / static_cast<double>(readingsPerLevel));
}

}  // namespace

Result<GaugeStudy> AnalyseGauge(std::span<const GaugeReading> readings,
                                std::optional<double> tolerance) {
  if (tolerance && !(*tolerance >= kLeastTolerance && *tolerance <= kGreatestTolerance)) {
    return Refusal::kArgument;
  }
  const Result<CrossedTable> table = Cross(readings);
  if (!table) {
    return table.Why();
  }
  const std::size_t p = table->parts;
  const std::size_t o = table->operators;
  const std::size_t r = table->trials;
  const SumsOfSquares sums = ComputeSums(*table);
  const Term part = MakeTerm(VarianceSource::kPart, p - 1, sums.part);
  const Term gaugeOperator = MakeTerm(VarianceSource::kOperator, o - 1, sums.gaugeOperator);
  const Term interaction =
      MakeTerm(VarianceSource::kInteraction, (p - 1) * (o - 1), sums.interaction);
  const Term repeatability =
      MakeTerm(VarianceSource::kRepeatability, p * o * (r - 1), sums.repeatability);
  const Term pooled = MakeTerm(VarianceSource::kPooled, p * o * r - p - o + 1,
                               sums.interaction + sums.repeatability);
  const FTest ofInteraction = TestAgainst(interaction, repeatability);

  GaugeStudy study;
  study.pooled = ofInteraction.p.value_or(1.0) > kPoolAbove;
  const Term& error = study.pooled ? pooled : interaction;
  study.repeatability = std::sqrt(study.pooled ? pooled.Ms() : repeatability.Ms());
  study.reproducibility = Component(gaugeOperator, error, p * r);
  study.interaction = study.pooled ? 0.0 : Component(interaction, repeatability, r);
  study.grr = std::hypot(study.repeatability, study.reproducibility, study.interaction);
  study.part = Component(part, error, o * r);
  study.total = std::hypot(study.grr, study.part);
  if (study.total == 0.0) {
    return Refusal::kNoSpread;
  }
  study.percentGrr = 100.0 * study.grr / study.total;
  if (tolerance) {
    study.percentTolerance = 100.0 * 6.0 * study.grr / *tolerance;
  }
  constexpr double kMostCategories = 1e9;
  if (const double ndc = 1.41 * study.part / study.grr; ndc < kMostCategories) {
    study.ndc = static_cast<std::int64_t>(ndc);
  }
  study.table = {Row(part, TestAgainst(part, error)),
                 Row(gaugeOperator, TestAgainst(gaugeOperator, error)),
                 Row(interaction, ofInteraction), Row(repeatability)};
  if (study.pooled) {
    study.table.push_back(Row(pooled));
  }
  const double ss = part.ss + gaugeOperator.ss + interaction.ss + repeatability.ss;
  study.table.push_back(
      {VarianceSource::kTotal, static_cast<double>(p * o * r - 1), ss, {}, {}, {}});
  return study;
}

}  // namespace vexa::statistics

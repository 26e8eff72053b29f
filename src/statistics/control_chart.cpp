// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/control_chart.h"

#include <cmath>

#include "statistics/moments.h"

namespace vexa::statistics {

double MeanMovingRange(std::span<const double> values) {
  long double sum = 0;
  for (std::size_t i = 1; i < values.size(); ++i) {
    sum += std::abs(values[i] - values[i - 1]);
  }
  return static_cast<double>(sum / static_cast<long double>(values.size() - 1));
}

Result<ChartLimits> ComputeLimits(std::span<const double> baseline) {
  if (const auto refusal = RefusalOf(baseline, 2)) {
    return *refusal;
  }
  const double meanRange = MeanMovingRange(baseline);
  if (meanRange <= RoundingOf(baseline)) {
    return Refusal::kNoSpread;
  }
  const auto centre = static_cast<double>(ComputeMoments(baseline).mean);
  const double reach = kLimitPerMeanRange * meanRange;
  return ChartLimits{.centre = centre,
                     .lower = centre - reach,
                     .upper = centre + reach,
                     .meanRange = meanRange,
                     .upperRange = kRangeLimitPerMeanRange * meanRange};
}

Result<std::vector<Signal>> JudgeValues(const ChartLimits& limits, std::span<const double> values,
                                        std::span<const RunRule> rules) {
  if (!AreNumbers(values)) {
    return Refusal::kNotANumber;
  }
  std::vector<double> deviations;
  deviations.reserve(values.size());
  for (const double value : values) {
    deviations.push_back((value - limits.centre) / limits.Sigma());
  }
  return FindSignals(deviations, rules);
}

std::vector<std::size_t> WideRanges(const ChartLimits& limits, std::span<const double> values) {
  std::vector<std::size_t> wide;
  for (std::size_t i = 1; i < values.size(); ++i) {
    if (std::abs(values[i] - values[i - 1]) > limits.upperRange) {
      wide.push_back(i + 1);
    }
  }
  return wide;
}

}  // namespace vexa::statistics

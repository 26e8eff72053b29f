// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/summary.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "statistics/distributions.h"
#include "statistics/moments.h"

namespace vexa::statistics {
namespace {

double Median(std::span<const double> values) {
  std::vector<double> sorted(values.begin(), values.end());
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::ranges::nth_element(sorted, middle);
  return sorted.size() % 2 == 1 ? *middle
                                : std::midpoint(*std::max_element(sorted.begin(), middle), *middle);
}

}  // namespace

Result<double> Lag1Autocorrelation(std::span<const double> values) {
  if (const auto refusal = RefusalOf(values, 2)) {
    return *refusal;
  }
  const Moments moments = ComputeMoments(values);
  if (moments.squares == 0) {
    return Refusal::kNoSpread;
  }
  long double products = 0;
  for (std::size_t i = 1; i < values.size(); ++i) {
    products += (values[i] - moments.mean) * (values[i - 1] - moments.mean);
  }
  return static_cast<double>(products / moments.squares);
}

Result<Summary> Summarise(std::span<const double> values, double confidence) {
  if (const auto refusal = RefusalOf(values, 2)) {
    return *refusal;
  }
  if (!(confidence > 0.0 && confidence < 1.0)) {
    return Refusal::kArgument;
  }
  const auto n = static_cast<double>(values.size());
  const Moments moments = ComputeMoments(values);
  Summary summary;
  summary.n = values.size();
  summary.mean = static_cast<double>(moments.mean);
  summary.s = static_cast<double>(std::sqrt(moments.squares / (n - 1.0L)));
  const auto [min, max] = std::ranges::minmax(values);
  summary.min = min;
  summary.max = max;
  summary.median = Median(values);
  summary.standardError = summary.s / std::sqrt(n);
  const double reach = StudentQuantile(0.5 + confidence / 2.0, n - 1.0) * summary.standardError;
  summary.interval = {summary.mean - reach, summary.mean + reach};
  if (const auto lag1 = Lag1Autocorrelation(values)) {
    summary.lag1 = *lag1;
  }
  return summary;
}

}  // namespace vexa::statistics

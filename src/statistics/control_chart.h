// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "statistics/refusal.h"
#include "statistics/run_rules.h"

namespace vexa::statistics {

/// Three sigma of a value over the mean moving range of two, 3 / d2, and the limit of the ranges
/// over their mean, D4, as published (Montgomery, Introduction to Statistical Quality Control, on
/// control charts for individual measurements; ISO 7870-2).
inline constexpr double kLimitPerMeanRange = 2.66;
inline constexpr double kRangeLimitPerMeanRange = 3.267;

/// The lines of a chart of individuals and moving ranges (XmR).
struct ChartLimits {
  double centre = 0.0;
  double lower = 0.0;
  double upper = 0.0;
  double meanRange = 0.0;  ///< of successive values
  double upperRange = 0.0;

  /// A third of the way from the centre line to a limit.
  [[nodiscard]] double Sigma() const { return kLimitPerMeanRange / 3.0 * meanRange; }

  [[nodiscard]] bool Hold(double value) const { return value >= lower && value <= upper; }
};

/// The mean of |x[i] - x[i-1]| over two numbers at least.
[[nodiscard]] double MeanMovingRange(std::span<const double> values);

/// The lines that a baseline sets; refuses kNotANumber, kTooFewValues (below two), kNoSpread.
Result<ChartLimits> ComputeLimits(std::span<const double> baseline);

/// Where the values break the rules under limits of whatever origin, with a mean range above 0;
/// refuses kNotANumber.
Result<std::vector<Signal>> JudgeValues(const ChartLimits& limits, std::span<const double> values,
                                        std::span<const RunRule> rules);

/// The points, from 1, whose range from the point before is above its limit. `values` are numbers.
[[nodiscard]] std::vector<std::size_t> WideRanges(const ChartLimits& limits,
                                                  std::span<const double> values);

}  // namespace vexa::statistics

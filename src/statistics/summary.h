// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "statistics/refusal.h"

namespace vexa::statistics {

inline constexpr double kUsualConfidence = 0.95;

struct Interval {
  double lower = 0.0;
  double upper = 0.0;
};

/// What a series of values says about itself.
struct Summary {
  std::size_t n = 0;
  double mean = 0.0;
  double s = 0.0;  ///< sample standard deviation, with n - 1
  double min = 0.0;
  double max = 0.0;
  double median = 0.0;
  double standardError = 0.0;  ///< of the mean, s / sqrt(n)
  Interval interval;           ///< of the mean, by Student's distribution
  std::optional<double> lag1;  ///< autocorrelation; nothing without spread
};

/// Of two values at least; refuses kNotANumber, kTooFewValues, kArgument (confidence not within
/// 0..1). The lag-1 autocorrelation is the sum of (x[i] - mean)(x[i-1] - mean) over the sum of
/// (x[i] - mean)², as NIST's Statistical Reference Datasets define it.
Result<Summary> Summarise(std::span<const double> values, double confidence = kUsualConfidence);

/// The lag-1 autocorrelation alone; refuses kNoSpread too.
Result<double> Lag1Autocorrelation(std::span<const double> values);

}  // namespace vexa::statistics

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "statistics/refusal.h"
#include "statistics/summary.h"

namespace vexa::statistics {

struct SpecificationLimits {
  std::optional<double> lower;
  std::optional<double> upper;
};

/// A capability index and its confidence interval.
struct CapabilityIndex {
  double value = 0.0;
  Interval interval;
};

/// How well a process that is in control keeps its limits, if its values are normally distributed.
struct Capability {
  std::size_t n = 0;
  double mean = 0.0;
  double sWithin = 0.0;               ///< mean moving range over d2 = 2 / sqrt(pi) = 1.128
  double sOverall = 0.0;              ///< sample standard deviation
  std::optional<CapabilityIndex> cp;  ///< (upper - lower) / (6 sWithin); of two limits
  CapabilityIndex cpk;                ///< distance of the mean to the nearer limit / (3 sWithin)
  std::optional<CapabilityIndex> pp;  ///< as cp with sOverall
  CapabilityIndex ppk;                ///< as cpk with sOverall
  /// The share of a normal distribution of this mean and sOverall that lies outside.
  double expectedOutside = 0.0;
};

/// Capability and performance indices (ISO 22514-2; Montgomery, Introduction to Statistical Quality
/// Control) of two values at least, in order of time. Refuses kNotANumber, kTooFewValues,
/// kNoSpread, kMissingLimit (neither of them), kLimitsReversed, kArgument.
///
/// Intervals of Cp and Pp: s² as a multiple of chi-square (Kane, Journal of Quality Technology 18,
/// 1986). Intervals of Cpk and Ppk: index -+ z sqrt(1 / (9 n) + index² / (2 df)) (Bissell, Applied
/// Statistics 39, 1990). df is n - 1 for sOverall. For sWithin it is that of the chi distribution
/// with the same coefficient of variation (Patnaik, Biometrika 37, 1950) as the mean moving range
/// of n independent values has (Cryer, Ryan, Journal of Quality Technology 22, 1990); about 0.6 n.
Result<Capability> ComputeCapability(std::span<const double> values,
                                     const SpecificationLimits& limits,
                                     double confidence = kUsualConfidence);

}  // namespace vexa::statistics

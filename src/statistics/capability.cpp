// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/capability.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "statistics/control_chart.h"
#include "statistics/distributions.h"
#include "statistics/moments.h"

namespace vexa::statistics {
namespace {

// A spread below this is none: an index stays far within a double's range.
constexpr double kSmallest = 1e-100;

// An estimate of sigma that is distributed as scale * chi / sqrt(df).
struct SpreadEstimate {
  double s = 0.0;
  double df = 0.0;
  double scale = 1.0;
};

// var(MR mean) / (d2 sigma)² is r = ((pi/2 - 1)(n - 1) + 2 (sqrt(3)/2 + pi/12 - 1)(n - 2)) /
// (n - 1)². A chi distribution scaled to mean sigma has 1/c4² - 1, which is 1/(2 df) + 1/(8 df²) up
// to the third order; setting them equal gives df, and the scale 1/c4 = sqrt(1 + r).
SpreadEstimate Within(std::span<const double> values) {
  constexpr double kPi = std::numbers::pi;
  const double d2 = 2.0 / std::sqrt(kPi);
  const auto n = static_cast<double>(values.size());
  const double variance = ((kPi / 2.0 - 1.0) * (n - 1.0) +
                           2.0 * (std::sqrt(3.0) / 2.0 + kPi / 12.0 - 1.0) * (n - 2.0)) /
                          ((n - 1.0) * (n - 1.0));
  return {.s = MeanMovingRange(values) / d2,
          .df = (1.0 + std::sqrt(1.0 + 2.0 * variance)) / (4.0 * variance),
          .scale = std::sqrt(1.0 + variance)};
}

std::optional<CapabilityIndex> Width(const SpreadEstimate& spread,
                                     const SpecificationLimits& limits, double confidence) {
  if (!limits.lower || !limits.upper) {
    return std::nullopt;
  }
  const double value = (*limits.upper - *limits.lower) / (6.0 * spread.s);
  const auto bound = [&spread, value](double p) {
    return value * spread.scale * std::sqrt(ChiSquareQuantile(p, spread.df) / spread.df);
  };
  return CapabilityIndex{value, {bound(0.5 - confidence / 2.0), bound(0.5 + confidence / 2.0)}};
}

CapabilityIndex Centred(const SpreadEstimate& spread, double distance, std::size_t n,
                        double confidence) {
  const double value = distance / (3.0 * spread.s);
  const double reach = NormalQuantile(0.5 + confidence / 2.0) *
                       std::hypot(1.0 / (3.0 * std::sqrt(static_cast<double>(n))),
                                  value / std::sqrt(2.0 * spread.df));
  return {value, {value - reach, value + reach}};
}

std::optional<Refusal> RefusalOf(const SpecificationLimits& limits) {
  if (!limits.lower && !limits.upper) {
    return Refusal::kMissingLimit;
  }
  if (!AreNumbers(std::array{limits.lower.value_or(0.0), limits.upper.value_or(0.0)})) {
    return Refusal::kNotANumber;
  }
  return limits.lower && limits.upper && *limits.lower >= *limits.upper
             ? std::optional(Refusal::kLimitsReversed)
             : std::nullopt;
}

}  // namespace

Result<Capability> ComputeCapability(std::span<const double> values,
                                     const SpecificationLimits& limits, double confidence) {
  if (const auto refusal = RefusalOf(values, 2)) {
    return *refusal;
  }
  if (const auto refusal = RefusalOf(limits)) {
    return *refusal;
  }
  if (!(confidence > 0.0 && confidence < 1.0)) {
    return Refusal::kArgument;
  }
  const SpreadEstimate within = Within(values);
  const SpreadEstimate overall{.s = StandardDeviation(values),
                               .df = static_cast<double>(values.size() - 1)};
  if (std::min(within.s, overall.s) <= std::max(kSmallest, RoundingOf(values))) {
    return Refusal::kNoSpread;
  }
  Capability capability;
  capability.n = values.size();
  capability.mean = static_cast<double>(ComputeMoments(values).mean);
  capability.sWithin = within.s;
  capability.sOverall = overall.s;
  double nearest = std::numeric_limits<double>::max();
  if (limits.lower) {
    const double distance = capability.mean - *limits.lower;
    nearest = distance;
    capability.expectedOutside += NormalAbove(distance / overall.s);
  }
  if (limits.upper) {
    const double distance = *limits.upper - capability.mean;
    nearest = std::min(nearest, distance);
    capability.expectedOutside += NormalAbove(distance / overall.s);
  }
  capability.cp = Width(within, limits, confidence);
  capability.pp = Width(overall, limits, confidence);
  capability.cpk = Centred(within, nearest, capability.n, confidence);
  capability.ppk = Centred(overall, nearest, capability.n, confidence);
  return capability;
}

}  // namespace vexa::statistics

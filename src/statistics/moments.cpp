// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/moments.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vexa::statistics {
namespace {

constexpr double kLargest = 1e100;

}  // namespace

bool AreNumbers(std::span<const double> values) {
  return std::ranges::all_of(values, [](double value) { return std::abs(value) <= kLargest; });
}

std::optional<Refusal> RefusalOf(std::span<const double> values, std::size_t fewest) {
  if (!AreNumbers(values)) {
    return Refusal::kNotANumber;
  }
  return values.size() < fewest ? std::optional(Refusal::kTooFewValues) : std::nullopt;
}

Moments ComputeMoments(std::span<const double> values) {
  const auto n = static_cast<long double>(values.size());
  // From the first value, so that equal values have no spread at all.
  const long double origin = values.front();
  long double sum = 0;
  for (const double value : values) {
    sum += value - origin;
  }
  const long double mean = origin + sum / n;
  long double remainder = 0;
  long double squares = 0;
  for (const double value : values) {
    const long double deviation = value - mean;
    remainder += deviation;
    squares += deviation * deviation;
  }
  return {mean + remainder / n, std::max(squares - remainder * remainder / n, 0.0L)};
}

double RoundingOf(std::span<const double> values) {
  constexpr double kUnits = 8.0;
  double greatest = 0.0;
  for (const double value : values) {
    greatest = std::max(greatest, std::abs(value));
  }
  return kUnits * std::numeric_limits<double>::epsilon() * greatest;
}

double StandardDeviation(std::span<const double> values) {
  return static_cast<double>(
      std::sqrt(ComputeMoments(values).squares / static_cast<long double>(values.size() - 1)));
}

}  // namespace vexa::statistics

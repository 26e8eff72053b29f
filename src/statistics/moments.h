// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "statistics/refusal.h"

namespace vexa::statistics {

/// Values that can be computed with: finite, and not above 1E+100 in magnitude, so that no square
/// leaves a double's range.
[[nodiscard]] bool AreNumbers(std::span<const double> values);

/// Why `values` cannot be computed with; nothing when all are numbers and there are `fewest`.
[[nodiscard]] std::optional<Refusal> RefusalOf(std::span<const double> values, std::size_t fewest);

/// Mean and sums of squares, in the precision of the intermediate results.
struct Moments {
  long double mean = 0;
  long double squares = 0;  ///< sum of the squared deviations from the mean; 0 for equal values
};

/// By two passes, each with its remainder taken off (Chan, Golub, LeVeque, "Algorithms for
/// computing the sample variance", The American Statistician 37, 1983). `values` holds one at
/// least.
[[nodiscard]] Moments ComputeMoments(std::span<const double> values);

/// A spread up to this comes from the rounding of the values alone: some units in the last place of
/// the greatest magnitude.
[[nodiscard]] double RoundingOf(std::span<const double> values);

/// The sample standard deviation, with n - 1. Of two values at least.
[[nodiscard]] double StandardDeviation(std::span<const double> values);

}  // namespace vexa::statistics

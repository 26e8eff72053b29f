// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "statistics/refusal.h"

namespace vexa::statistics {

/// Above this lag-1 autocorrelation a capability from the moving ranges promises too much.
inline constexpr double kLargestLag1 = 0.3;

/// Why a capability, which takes values for independent and normally distributed, would mislead.
enum class NormalDoubt {
  kNearBound,      ///< a bound that no value can pass lies within three sigma of the mean
  kAutocorrelated  ///< lag-1 autocorrelation above kLargestLag1
};

/// The doubt in the user's words.
[[nodiscard]] QString DoubtText(NormalDoubt doubt);

/// The doubts about a series of two values at least, in order of time; none where it is refused as
/// Summarise refuses it. `bound` is a physical lower limit of the value, as 0 of a reflectance.
[[nodiscard]] std::vector<NormalDoubt> FindNormalDoubts(std::span<const double> values,
                                                        std::optional<double> bound);

/// Counts of values in bins of one width; a value on an edge counts above it, the greatest in the
/// last bin.
struct Histogram {
  double first = 0.0;  ///< the lower edge of the first bin
  double width = 0.0;
  std::vector<std::size_t> counts;

  [[nodiscard]] double Centre(std::size_t bin) const {
    return first + (static_cast<double>(bin) + 0.5) * width;
  }
};

/// Bins of the width 3.49 s / n^(1/3) (D. W. Scott, "On optimal and data-based histograms",
/// Biometrika 66, 1979), 5 to 40 of them over the range of the values. Refuses kNotANumber,
/// kTooFewValues (below two), kNoSpread.
Result<Histogram> MakeHistogram(std::span<const double> values);

}  // namespace vexa::statistics

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <utility>
#include <variant>

namespace vexa::statistics {

/// Why a statistic was not computed.
enum class Refusal {
  kNotANumber,      ///< a value that is not finite, or above 1E+100 in magnitude
  kTooFewValues,    ///< fewer values than the statistic needs
  kNoSpread,        ///< all values are the same, and the statistic divides by their spread
  kMissingLimit,    ///< neither a lower nor an upper limit
  kLimitsReversed,  ///< the lower limit is not below the upper one
  kTooFewGroups,    ///< fewer than two parts, operators, trials or series
  kUnbalanced,      ///< not every part measured equally often by every operator
  kArgument,        ///< a confidence outside 0..1, or a tolerance that is no width
};

/// The refusal in the user's words.
[[nodiscard]] QString RefusalText(Refusal refusal);

/// A statistic, or why there is none.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : content_(std::move(value)) {}
  Result(Refusal refusal) : content_(refusal) {}

  explicit operator bool() const { return content_.index() == 0; }
  const T& operator*() const { return std::get<0>(content_); }
  const T* operator->() const { return &std::get<0>(content_); }
  [[nodiscard]] Refusal Why() const { return std::get<1>(content_); }

 private:
  std::variant<T, Refusal> content_;
};

}  // namespace vexa::statistics

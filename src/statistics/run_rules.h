// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstddef>
#include <span>
#include <vector>

namespace vexa::statistics {

/// What a run rule looks for among the last points of a control chart.
enum class Pattern {
  kOneSide,      ///< points beyond so many sigma on the same side
  kInside,       ///< points not beyond so many sigma on either side
  kOutside,      ///< points beyond so many sigma on either side
  kTrend,        ///< points that all rise or all fall
  kAlternating,  ///< points that go up and down in turn
};

/// A rule: `needed` of the last `within` points show its pattern, the last one among them.
struct RunRule {
  int number;  ///< within its set, from 1
  Pattern pattern;
  std::size_t needed;
  std::size_t within;
  double sigmas;
  const char* text;  ///< to be translated, see RuleText
};

/// The four rules of the Western Electric Statistical Quality Control Handbook (1956): one beyond 3
/// sigma; two of three beyond 2; four of five beyond 1; eight on one side.
[[nodiscard]] std::span<const RunRule> WesternElectricRules();

/// The eight of L. S. Nelson, "The Shewhart control chart: tests for special causes", Journal of
/// Quality Technology 16 (1984): one beyond 3 sigma; nine on one side; six rising or falling;
/// fourteen alternating; two of three beyond 2; four of five beyond 1; fifteen within 1; eight
/// beyond 1 on either side.
[[nodiscard]] std::span<const RunRule> NelsonRules();

/// The rule in the user's words.
[[nodiscard]] QString RuleText(const RunRule& rule);

/// Whether the last of `deviations` (from the centre line, in sigmas, in order of time) completes
/// the pattern. A point on a line is not beyond it, and one on the centre line is on neither side.
[[nodiscard]] bool CompletesPattern(const RunRule& rule, std::span<const double> deviations);

/// A rule broken at a point.
struct Signal {
  std::size_t index = 0;  ///< from 1, the point that completes the pattern
  int rule = 0;

  bool operator==(const Signal&) const = default;
};

/// Every point that completes a pattern of any of the rules, by point, then in the order of
/// `rules`.
[[nodiscard]] std::vector<Signal> FindSignals(std::span<const double> deviations,
                                              std::span<const RunRule> rules);

}  // namespace vexa::statistics

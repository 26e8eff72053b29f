// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/run_rules.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/translation.h"

namespace vexa::statistics {
namespace {

using enum Pattern;

constexpr const char* kBeyondThree = QT_TRANSLATE_NOOP("Text", "1点が3σの外にある");
constexpr const char* kTwoOfThree =
    QT_TRANSLATE_NOOP("Text", "連続する3点中2点が同じ側で2σの外にある");
constexpr const char* kFourOfFive =
    QT_TRANSLATE_NOOP("Text", "連続する5点中4点が同じ側で1σの外にある");
constexpr const char* kEightOnOneSide =
    QT_TRANSLATE_NOOP("Text", "連続する8点が中心線の同じ側にある");
constexpr const char* kNineOnOneSide =
    QT_TRANSLATE_NOOP("Text", "連続する9点が中心線の同じ側にある");
constexpr const char* kSixInTrend =
    QT_TRANSLATE_NOOP("Text", "連続する6点が増加または減少している");
constexpr const char* kFourteenAlternating =
    QT_TRANSLATE_NOOP("Text", "連続する14点が交互に増減している");
constexpr const char* kFifteenInside = QT_TRANSLATE_NOOP("Text", "連続する15点が1σの内にある");
constexpr const char* kEightOutside = QT_TRANSLATE_NOOP("Text", "連続する8点が1σの外にある");

constexpr std::array<RunRule, 4> kWesternElectric{{
    {1, kOneSide, 1, 1, 3.0, kBeyondThree},
    {2, kOneSide, 2, 3, 2.0, kTwoOfThree},
    {3, kOneSide, 4, 5, 1.0, kFourOfFive},
    {4, kOneSide, 8, 8, 0.0, kEightOnOneSide},
}};

constexpr std::array<RunRule, 8> kNelson{{
    {1, kOneSide, 1, 1, 3.0, kBeyondThree},
    {2, kOneSide, 9, 9, 0.0, kNineOnOneSide},
    {3, kTrend, 6, 6, 0.0, kSixInTrend},
    {4, kAlternating, 14, 14, 0.0, kFourteenAlternating},
    {5, kOneSide, 2, 3, 2.0, kTwoOfThree},
    {6, kOneSide, 4, 5, 1.0, kFourOfFive},
    {7, kInside, 15, 15, 1.0, kFifteenInside},
    {8, kOutside, 8, 8, 1.0, kEightOutside},
}};

bool Shows(const RunRule& rule, double deviation, bool above) {
  switch (rule.pattern) {
    case kOneSide:
      return above ? deviation > rule.sigmas : deviation < -rule.sigmas;
    case kInside:
      return std::abs(deviation) <= rule.sigmas;
    default:
      return std::abs(deviation) > rule.sigmas;
  }
}

// Whether all steps go one way (`turn` 1) or each against the one before (`turn` -1).
bool StepsFollow(std::span<const double> points, int turn) {
  double sign = points[1] > points[0] ? 1.0 : -1.0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!((points[i] - points[i - 1]) * sign > 0.0)) {
      return false;
    }
    sign *= turn;
  }
  return true;
}

}  // namespace

std::span<const RunRule> WesternElectricRules() {
  return kWesternElectric;
}

std::span<const RunRule> NelsonRules() {
  return kNelson;
}

QString RuleText(const RunRule& rule) {
  return Text::tr(rule.text);
}

bool CompletesPattern(const RunRule& rule, std::span<const double> deviations) {
  if (deviations.size() < rule.needed) {
    return false;
  }
  const auto last = deviations.last(std::min(rule.within, deviations.size()));
  if (rule.pattern == kTrend || rule.pattern == kAlternating) {
    return StepsFollow(last, rule.pattern == kTrend ? 1 : -1);
  }
  const bool above = last.back() > 0.0;
  const auto shows = [&rule, above](double deviation) { return Shows(rule, deviation, above); };
  return shows(last.back()) &&
         static_cast<std::size_t>(std::ranges::count_if(last, shows)) >= rule.needed;
}

std::vector<Signal> FindSignals(std::span<const double> deviations,
                                std::span<const RunRule> rules) {
  std::vector<Signal> found;
  for (std::size_t n = 1; n <= deviations.size(); ++n) {
    for (const RunRule& rule : rules) {
      if (CompletesPattern(rule, deviations.first(n))) {
        found.push_back({n, rule.number});
      }
    }
  }
  return found;
}

}  // namespace vexa::statistics

// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/reflectance_band.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "standards/judgement.h"

namespace vexa {
namespace {

bool IsJudged(const StandardSet& standard) {
  return standard.useReflectance && standard.conditions[0].enabled;
}

/// Calls visit(segment, point) for every point within 440..840 nm, in the order of judging.
/// Returns whether the band also asks for wavelengths outside. Throws ArithmeticFault when the
/// limits cannot be interpolated.
template <typename Visit>
bool VisitBand(const StandardSet& standard, Visit visit) {
  const auto& conditions = standard.conditions;
  // A limit that is not interpolated stays as it was before; before the first it is condition 1.
  BandPoint point{standard.wavelengths[0], conditions[0].upper, conditions[0].lower};
  if (!conditions[1].enabled) {
    const bool inside = ReflectanceSpectrum::Contains(point.nm);
    if (inside) {
      visit(std::size_t{0}, point);
    }
    return !inside;
  }
  bool leavesRange = false;
  for (std::size_t k = 0; k + 1 < kConditionCount; ++k) {
    const int from = standard.wavelengths[k];
    const int to = standard.wavelengths[k + 1];
    if (!conditions[k + 1].enabled || to < from) {
      continue;
    }
    leavesRange =
        leavesRange || !ReflectanceSpectrum::Contains(from) || !ReflectanceSpectrum::Contains(to);
    const int last = std::min(to, ReflectanceSpectrum::kLastNm);
    for (point.nm = std::max(from, ReflectanceSpectrum::kFirstNm); point.nm <= last; ++point.nm) {
      InterpolateLimit(from, to, conditions[k].upper, conditions[k + 1].upper, point.nm,
                       point.upper);
      InterpolateLimit(from, to, conditions[k].lower, conditions[k + 1].lower, point.nm,
                       point.lower);
      visit(k, point);
    }
  }
  return leavesRange;
}

}  // namespace

std::vector<std::vector<BandPoint>> ReflectanceBand(const StandardSet& standard) {
  std::vector<std::vector<BandPoint>> band;
  if (!IsJudged(standard)) {
    return band;
  }
  std::optional<std::size_t> current;
  try {
    VisitBand(standard, [&](std::size_t segment, const BandPoint& point) {
      if (current != segment) {
        current = segment;
        band.emplace_back();
      }
      band.back().push_back(point);
    });
  } catch (const ArithmeticFault&) {
    // What can be drawn of the band is drawn.
  }
  return band;
}

std::optional<BandVerdict> JudgeReflectanceBand(const ReflectanceSpectrum& reflectance,
                                                const StandardSet& standard) {
  if (!IsJudged(standard)) {
    return std::nullopt;
  }
  BandVerdict verdict;
  try {
    const bool leavesRange = VisitBand(standard, [&](std::size_t, const BandPoint& point) {
      const double value = reflectance[point.nm];
      verdict.passed = verdict.passed && InRange(point.lower, point.upper, value);
      const double margin = std::min(point.upper - value, value - point.lower);
      if (!verdict.margin || margin < *verdict.margin) {
        verdict.margin = margin;
        verdict.marginNm = point.nm;
      }
    });
    if (!leavesRange) {
      return verdict;
    }
  } catch (const ArithmeticFault&) {
    // Limits that cannot be computed are met by nothing.
  }
  return BandVerdict{false, std::nullopt, 0};
}

}  // namespace vexa

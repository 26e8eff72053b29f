// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/process_study.h"

#include <algorithm>
#include <cmath>

#include "base/translation.h"
#include "statistics/moments.h"
#include "statistics/summary.h"

namespace vexa::statistics {
namespace {

constexpr double kSigmasToBound = 3.0;
constexpr double kScottFactor = 3.49;
constexpr double kFewestBins = 5.0;
constexpr double kMostBins = 40.0;

}  // namespace

QString DoubtText(NormalDoubt doubt) {
  switch (doubt) {
    case NormalDoubt::kNearBound:
      return Text::tr("値が物理的な限界0に近く、正規分布とみなせません。");
    case NormalDoubt::kAutocorrelated:
      return Text::tr("続く値どうしに相関があります（1次の自己相関が0.3を超えています）。");
  }
  return {};
}

std::vector<NormalDoubt> FindNormalDoubts(std::span<const double> values,
                                          std::optional<double> bound) {
  const auto summary = Summarise(values);
  std::vector<NormalDoubt> doubts;
  if (!summary) {
    return doubts;
  }
  if (bound && summary->mean - kSigmasToBound * summary->s < *bound) {
    doubts.push_back(NormalDoubt::kNearBound);
  }
  if (summary->lag1 && *summary->lag1 > kLargestLag1) {
    doubts.push_back(NormalDoubt::kAutocorrelated);
  }
  return doubts;
}

Result<Histogram> MakeHistogram(std::span<const double> values) {
  if (const auto refusal = RefusalOf(values, 2)) {
    return *refusal;
  }
  const auto [least, greatest] = std::ranges::minmax(values);
  const double range = greatest - least;
  // A range of a few roundings has no place for bins.
  if (!(least + range / kMostBins > least)) {
    return Refusal::kNoSpread;
  }
  const double scott =
      kScottFactor * StandardDeviation(values) / std::cbrt(static_cast<double>(values.size()));
  const double bins = std::clamp(std::ceil(range / scott), kFewestBins, kMostBins);
  Histogram histogram{least, range / bins,
                      std::vector<std::size_t>(static_cast<std::size_t>(bins))};
  for (const double value : values) {
    const auto bin = static_cast<std::size_t>((value - least) / histogram.width);
    ++histogram.counts[std::min(bin, histogram.counts.size() - 1)];
  }
  return histogram;
}

}  // namespace vexa::statistics

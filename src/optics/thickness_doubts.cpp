// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness_doubts.h"

#include <algorithm>
#include <cmath>

#include "base/translation.h"
#include "optics/extremum_search.h"
#include "optics/whole_fringes.h"

namespace vexa {
namespace {

constexpr int kFirstNm = ReflectanceSpectrum::kFirstNm;
constexpr int kLastNm = ReflectanceSpectrum::kLastNm;
constexpr double kEdgeNm = 7.0;  // where the cut smoothing window splits extrema
constexpr double kSameNm = 2.0;
constexpr double kReadingNm = 2.0;     // how far an extremum may be misread
constexpr double kSpacingPart = 0.35;  // of an order; a missing or false extremum makes 0.5 or more
constexpr double kNoiseHeights = 4.0;  // a fringe in standard deviations of the noise
constexpr double kAgreement = 0.012;   // of a number with the fringes as a whole
constexpr double kDenial = 0.014;      // less than the 2 % that must not slip
constexpr double kFreePhaseAgreement = 0.022;
constexpr double kFreePhaseRatio = 1.5;

double NoiseOf(const ReflectanceSpectrum& spectrum) {
  double sum = 0.0;
  for (int nm = kFirstNm + 3; nm <= kLastNm; ++nm) {
    const double difference =
        spectrum[nm] - 3.0 * spectrum[nm - 1] + 3.0 * spectrum[nm - 2] - spectrum[nm - 3];
    sum += difference * difference;
  }
  return std::sqrt(sum / 20.0 / (kLastNm - kFirstNm - 2));
}

bool AtAnEdge(const ExtremumPoint& point) {
  return point.wavelengthNm < kFirstNm + kEdgeNm || point.wavelengthNm > kLastNm - kEdgeNm;
}

/// The extrema that a type's formula counts, and what the index is at them.
struct Counted {
  std::span<const Extremum> extrema;
  const ReflectanceSpectrum& index;

  [[nodiscard]] double Order(std::size_t i) const {
    const double nm = extrema[i].point.wavelengthNm;
    return index[NearestNm(nm)] / nm;
  }
};

bool HasDuplicate(std::int16_t type, const Counted& counted) {
  for (std::size_t i = 1; i < counted.extrema.size(); ++i) {
    const Extremum& before = counted.extrema[i - 1];
    const Extremum& at = counted.extrema[i];
    if (at.point.wavelengthNm - before.point.wavelengthNm <= kSameNm ||
        (type == ThicknessType::kC && bool{at.maximum} == bool{before.maximum})) {
      return true;
    }
  }
  return false;
}

bool IsUnevenlySpaced(const Counted& counted) {
  const std::size_t last = counted.extrema.size() - 1;
  if (last < 2) {
    return false;
  }
  std::vector<double> steps;
  for (std::size_t i = 0; i < last; ++i) {
    steps.push_back(counted.Order(i) - counted.Order(i + 1));
  }
  std::vector<double> sorted = steps;
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::ranges::nth_element(sorted, middle);
  for (std::size_t i = 0; i < last; ++i) {
    const double nm = counted.extrema[i].point.wavelengthNm;
    const double reading = kReadingNm * counted.Order(i) / nm;
    if (std::abs(steps[i] - *middle) > kSpacingPart * *middle + reading) {
      return true;
    }
  }
  return false;
}

bool IsInTheNoise(const Counted& counted, const ReflectanceSpectrum& spectrum) {
  const double noise = NoiseOf(spectrum);
  const ReflectanceSpectrum smoothed = Smoothed(spectrum);
  for (std::size_t i = 1; i < counted.extrema.size(); ++i) {
    // Refining may have moved neighbours past one another.
    const auto [from, to] = std::minmax({NearestNm(counted.extrema[i - 1].point.wavelengthNm),
                                         NearestNm(counted.extrema[i].point.wavelengthNm)});
    const auto between = smoothed.Values().subspan(static_cast<std::size_t>(from - kFirstNm),
                                                   static_cast<std::size_t>(to - from + 1));
    const auto [lowest, highest] = std::ranges::minmax(between);
    if (highest - lowest < kNoiseHeights * noise) {
      return true;
    }
  }
  return false;
}

// An index that follows the fringes, as the one derived from a substrate does, is no scale for
// them: the line through the two indices of the formula stands for it.
ReflectanceSpectrum SmoothIndex(const ReflectanceSpectrum& index, const ThicknessResult& result) {
  bool falls = true;
  for (int nm = kFirstNm; nm < kLastNm; ++nm) {
    falls = falls && index[nm] / nm > index[nm + 1] / (nm + 1);
  }
  if (falls) {
    return index;
  }
  ReflectanceSpectrum line;
  const double mean = (result.firstIndex + result.secondIndex) / 2.0;
  std::ranges::fill(line.Values(), mean);
  return line;
}

/// What the fringes as a whole say of a result.
enum class Verdict { kConfirmed, kUndecided, kDenied, kUnknown };

Verdict CompareWith(const std::optional<WholeFringeThickness>& whole, double statedNm,
                    double agreement, double denial) {
  if (!whole) {
    return Verdict::kUnknown;
  }
  double difference = std::abs(statedNm / whole->thicknessNm - 1.0);
  for (const double rivalNm : whole->rivalsNm) {
    difference = std::max(difference, std::abs(statedNm / rivalNm - 1.0));
  }
  return difference > denial      ? Verdict::kDenied
         : difference > agreement ? Verdict::kUndecided
                                  : Verdict::kConfirmed;
}

Verdict Compare(const ReflectanceSpectrum& spectrum, const ReflectanceSpectrum& filmIndex,
                const ThicknessResult& result) {
  const ReflectanceSpectrum index = SmoothIndex(filmIndex, result);
  if (!std::isfinite(result.thicknessNm) || result.thicknessNm <= 0.0) {
    return Verdict::kUnknown;
  }
  // What the optical formula means by the thickness of a film whose index changes.
  const double w1 = result.first.wavelengthNm;
  const double w2 = result.second.wavelengthNm;
  const double unit =
      result.physical ? 1.0 : (index[NearestNm(w1)] * w2 - index[NearestNm(w2)] * w1) / (w2 - w1);
  const double statedNm = result.thicknessNm / unit;
  const auto known = FitWholeFringes(spectrum, index, statedNm);
  const Verdict verdict = CompareWith(known, statedNm, kAgreement, kDenial);
  if (result.physical || verdict == Verdict::kConfirmed) {
    return verdict;
  }
  // An optical thickness is also asked for where the index is not known. Then a free phase fits far
  // better, but without the order it says less.
  ReflectanceSpectrum one;
  std::ranges::fill(one.Values(), 1.0);
  const auto free = FitWholeFringes(spectrum, one, result.thicknessNm, false);
  if (known && (!free || known->sumOfSquares < kFreePhaseRatio * free->sumOfSquares)) {
    return verdict;
  }
  return CompareWith(free, result.thicknessNm, kFreePhaseAgreement, kFreePhaseAgreement);
}

}  // namespace

std::vector<ThicknessDoubt> FindThicknessDoubts(std::int16_t type,
                                                const ReflectanceSpectrum& spectrum,
                                                const ReflectanceSpectrum& filmIndex,
                                                const ThicknessResult& result) {
  if (!result.IsComputed() || result.extrema.Found().size() < 2) {
    return {};
  }
  const auto found = result.extrema.Found();
  const Counted counted{type == ThicknessType::kA ? found.last(2) : found, filmIndex};
  // A split extremum or a misread one is a sign that the order may be wrong. Where the fringes as a
  // whole give the same number it is not.
  const Verdict verdict = Compare(spectrum, filmIndex, result);
  if (verdict == Verdict::kConfirmed) {
    return {};
  }
  const std::pair<ThicknessDoubt, bool> all[] = {
      {ThicknessDoubt::kEdge, std::ranges::any_of(counted.extrema, AtAnEdge, &Extremum::point)},
      {ThicknessDoubt::kDuplicate, HasDuplicate(type, counted)},
      {ThicknessDoubt::kSpacing, IsUnevenlySpaced(counted)},
      {ThicknessDoubt::kNoise, verdict == Verdict::kUnknown || IsInTheNoise(counted, spectrum)},
      {ThicknessDoubt::kDisagrees, verdict == Verdict::kDenied},
  };
  std::vector<ThicknessDoubt> doubts;
  for (const auto& [doubt, holds] : all) {
    if (holds) {
      doubts.push_back(doubt);
    }
  }
  return doubts;
}

QString ThicknessDoubtName(ThicknessDoubt doubt) {
  switch (doubt) {
    case ThicknessDoubt::kEdge:
      return QStringLiteral("edge");
    case ThicknessDoubt::kDuplicate:
      return QStringLiteral("duplicate");
    case ThicknessDoubt::kSpacing:
      return QStringLiteral("spacing");
    case ThicknessDoubt::kNoise:
      return QStringLiteral("noise");
    case ThicknessDoubt::kDisagrees:
      return QStringLiteral("disagrees");
  }
  return {};
}

std::optional<ThicknessDoubt> ThicknessDoubtOf(const QString& name) {
  for (const ThicknessDoubt doubt :
       {ThicknessDoubt::kEdge, ThicknessDoubt::kDuplicate, ThicknessDoubt::kSpacing,
        ThicknessDoubt::kNoise, ThicknessDoubt::kDisagrees}) {
    if (ThicknessDoubtName(doubt) == name) {
      return doubt;
    }
  }
  return std::nullopt;
}

QString ThicknessDoubtText(ThicknessDoubt doubt) {
  switch (doubt) {
    case ThicknessDoubt::kEdge:
      return Text::tr("測定範囲の端から7nm以内の極値を数えています。");
    case ThicknessDoubt::kDuplicate:
      return Text::tr("同じ極値を2回数えているか、同じ種類の極値が続いています。");
    case ThicknessDoubt::kSpacing:
      return Text::tr("極値の間隔が1枚の膜の干渉次数と合いません。");
    case ThicknessDoubt::kNoise:
      return Text::tr("干渉縞がノイズより高くありません。");
    case ThicknessDoubt::kDisagrees:
      return Text::tr("干渉縞全体から求めた膜厚と一致しません。");
  }
  return {};
}

}  // namespace vexa

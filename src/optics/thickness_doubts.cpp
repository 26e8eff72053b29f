// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness_doubts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

#include "base/translation.h"
#include "optics/extremum_search.h"
#include "optics/fourier_thickness.h"

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
constexpr double kThinNm = 1500.0;
constexpr double kThinnestNm = 100.0;
constexpr double kClear = 60.0;     // chi squared that the fringes must explain
constexpr double kRivalChi = 25.0;  // chi squared by which a rival may fit worse
constexpr double kRivalPart = 0.1;  // the same as a part of the sum of squares

/// Least squares of the fringes for one thickness after another.
class FringeRegression {
 public:
  static constexpr std::size_t kTerms = 7;

  FringeRegression(const ReflectanceSpectrum& spectrum, const ReflectanceSpectrum& index,
                   bool phaseKnown)
      : terms_(phaseKnown ? 5 : kTerms) {
    for (int nm = kFirstNm; nm <= kLastNm; ++nm) {
      x_.push_back(2.0 * index[nm] / nm);
      y_.push_back(spectrum[nm]);
    }
  }

  // What a level, a parabola over x, and, with a thickness, a fringe leave. The terms are made
  // orthogonal one after the other.
  [[nodiscard]] double SumOfSquares(std::optional<double> thicknessNm) const {
    const std::size_t terms = thicknessNm ? terms_ : 3;
    const double middle = (x_.front() + x_.back()) / 2.0;
    const double half = (x_.front() - x_.back()) / 2.0;
    std::array<std::array<double, kTerms + 1>, kTerms + 1> products{};
    for (std::size_t i = 0; i < x_.size(); ++i) {
      const double t = (x_[i] - middle) / half;
      std::array<double, kTerms + 1> row{1.0, t, t * t};
      if (thicknessNm) {
        row[3] = std::cos(2.0 * std::numbers::pi * x_[i] * *thicknessNm);
        row[4] = row[3] * t;
        if (terms_ == kTerms) {
          row[5] = std::sin(2.0 * std::numbers::pi * x_[i] * *thicknessNm);
          row[6] = row[5] * t;
        }
      }
      row[terms] = y_[i];
      for (std::size_t a = 0; a <= terms; ++a) {
        for (std::size_t b = 0; b <= a; ++b) {
          products[a][b] += row[a] * row[b];
        }
      }
    }
    // Cholesky of the products of the terms and the values: the last pivot is what is left.
    for (std::size_t a = 0; a <= terms; ++a) {
      const double whole = products[a][a];
      for (std::size_t b = 0; b <= a; ++b) {
        double value = products[a][b];
        for (std::size_t k = 0; k < b; ++k) {
          value -= products[a][k] * products[b][k];
        }
        if (b < a) {
          products[a][b] = products[b][b] > 0.0 ? value / products[b][b] : 0.0;
        } else if (a == terms) {
          return std::max(value, 0.0);
        } else {
          // A term that the ones before it span has no part of its own.
          products[a][a] = value > 1e-10 * whole ? std::sqrt(value) : 0.0;
        }
      }
    }
    return 0.0;
  }

  [[nodiscard]] std::size_t Points() const { return x_.size(); }

 private:
  std::size_t terms_;
  std::vector<double> x_;
  std::vector<double> y_;
};

struct Minimum {
  double thicknessNm;
  double sumOfSquares;
};

// The local minima of the sum of squares between two thicknesses, each on a parabola.
void FindMinima(const FringeRegression& regression, double fromNm, double toNm, double stepNm,
                std::vector<Minimum>& found) {
  std::vector<double> line;
  for (double nm = fromNm; nm <= toNm; nm += stepNm) {
    line.push_back(regression.SumOfSquares(nm));
  }
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    if (line[i] <= line[i - 1] && line[i] < line[i + 1]) {
      double at = fromNm + static_cast<double>(i) * stepNm;
      std::array<double, 3> sums{line[i - 1], line[i], line[i + 1]};
      double width = stepNm;
      for (int round = 0; round < 2; ++round) {
        const double bend = sums[0] + sums[2] - 2.0 * sums[1];
        at += bend > 0.0 ? width * std::clamp(0.5 * (sums[0] - sums[2]) / bend, -1.0, 1.0) : 0.0;
        width /= 6.0;
        sums = {regression.SumOfSquares(at - width), regression.SumOfSquares(at),
                regression.SumOfSquares(at + width)};
      }
      found.push_back({at, sums[1]});
    }
  }
}

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

std::optional<WholeFringeThickness> FitWholeFringes(const ReflectanceSpectrum& spectrum,
                                                    const ReflectanceSpectrum& filmIndex,
                                                    double aroundNm, bool phaseKnown) {
  const auto transform = TransformFringes(spectrum, filmIndex);
  if (!transform) {
    return std::nullopt;
  }
  const FringeRegression regression(spectrum, filmIndex, phaseKnown);
  const double orderNm = 1.0 / (filmIndex[kFirstNm] / kFirstNm + filmIndex[kLastNm] / kLastNm);
  const double stepNm = orderNm / 10.0;
  std::vector<Minimum> found;
  FindMinima(regression, kThinnestNm, kThinNm, stepNm, found);
  const auto searchAround = [&](double nm) {
    if (nm + orderNm > kThinNm && nm < FourierThickness::kHighestNm) {
      FindMinima(regression, std::max(nm - orderNm, kThinnestNm), nm + orderNm, stepNm, found);
    }
  };
  searchAround(aroundNm);
  for (std::size_t i = 0; i < std::min<std::size_t>(transform->peaks.size(), 2); ++i) {
    searchAround(transform->peaks[i].thicknessNm);
  }
  if (found.empty()) {
    return std::nullopt;
  }
  const auto points = static_cast<double>(regression.Points());
  const Minimum best = *std::ranges::min_element(found, {}, &Minimum::sumOfSquares);
  const double without = regression.SumOfSquares(std::nullopt);
  if ((without - best.sumOfSquares) * points < kClear * best.sumOfSquares || without <= 0.0) {
    return std::nullopt;
  }
  WholeFringeThickness result{best.thicknessNm, best.sumOfSquares, {}};
  const double limit =
      best.sumOfSquares * (1.0 + std::max(kRivalPart, kRivalChi / points)) + 1e-6 * without;
  for (const Minimum& minimum : found) {
    if (minimum.sumOfSquares < limit && minimum.thicknessNm != best.thicknessNm) {
      result.rivalsNm.push_back(minimum.thicknessNm);
    }
  }
  return result;
}

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

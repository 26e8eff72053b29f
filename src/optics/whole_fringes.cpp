// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/whole_fringes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "optics/fourier_thickness.h"

namespace vexa {
namespace {

constexpr int kFirstNm = ReflectanceSpectrum::kFirstNm;
constexpr int kLastNm = ReflectanceSpectrum::kLastNm;
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
  for (int i = 0; fromNm + i * stepNm <= toNm; ++i) {
    line.push_back(regression.SumOfSquares(fromNm + i * stepNm));
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

}  // namespace vexa

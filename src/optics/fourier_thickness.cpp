// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/fourier_thickness.h"

#include <gsl/gsl_fft_real.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>
#include <numeric>

namespace vexa {
namespace {

constexpr int kFewestPoints = 20;
constexpr std::size_t kTransformLength = 4096;
// The grid of x resolves four times the highest thickness, so that the folds of what lies between
// its points stay small.
constexpr double kGridStep = 1.0 / (4.0 * FourierThickness::kHighestNm);

/// The fringes over x, ascending.
struct Fringes {
  std::vector<double> x;         // 2 n / w, 1/nm
  std::vector<double> weighted;  // percent times weight
  double weight = 0.0;           // sum of the weights

  [[nodiscard]] double Range() const { return x.back() - x.front(); }

  // The amplitude at a thickness, by the sum over the points themselves.
  [[nodiscard]] double Amplitude(double thicknessNm) const {
    double real = 0.0;
    double imaginary = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
      const double phase = 2.0 * std::numbers::pi * thicknessNm * x[i];
      real += weighted[i] * std::cos(phase);
      imaginary += weighted[i] * std::sin(phase);
    }
    return 2.0 * std::hypot(real, imaginary) / weight;
  }
};

// Takes from the values their weighted parabola over x.
void Detrend(const std::vector<double>& x, const std::vector<double>& weights,
             std::vector<double>& values) {
  std::vector<std::vector<double>> basis;
  const double middle = (x.front() + x.back()) / 2.0;
  const double half = (x.back() - x.front()) / 2.0;
  for (int power = 0; power <= 2; ++power) {
    std::vector<double> term(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
      term[i] = std::pow((x[i] - middle) / half, power);
    }
    const auto product = [&](const std::vector<double>& a, const std::vector<double>& b) {
      double sum = 0.0;
      for (std::size_t i = 0; i < x.size(); ++i) {
        sum += weights[i] * a[i] * b[i];
      }
      return sum;
    };
    const auto takeOut = [&](const std::vector<double>& from, std::vector<double>& of) {
      const double part = product(from, of) / product(from, from);
      for (std::size_t i = 0; i < x.size(); ++i) {
        of[i] -= part * from[i];
      }
    };
    for (const auto& earlier : basis) {
      takeOut(earlier, term);
    }
    takeOut(term, values);
    basis.push_back(std::move(term));
  }
}

std::optional<Fringes> FringesOverX(const ReflectanceSpectrum& spectrum,
                                    const ReflectanceSpectrum& index, int fromNm, int toNm) {
  if (!ReflectanceSpectrum::Contains(fromNm) || !ReflectanceSpectrum::Contains(toNm) ||
      toNm - fromNm + 1 < kFewestPoints) {
    return std::nullopt;
  }
  Fringes fringes;
  std::vector<double> values;
  for (int nm = toNm; nm >= fromNm; --nm) {
    const double x = 2.0 * index[nm] / nm;
    if (!std::isfinite(spectrum[nm]) || !std::isfinite(x) || x <= 0.0 ||
        (!fringes.x.empty() && x <= fringes.x.back())) {
      return std::nullopt;
    }
    fringes.x.push_back(x);
    values.push_back(spectrum[nm]);
  }
  const std::size_t last = values.size() - 1;
  std::vector<double> weights(values.size());
  for (std::size_t i = 0; i <= last; ++i) {
    const double width = fringes.x[std::min(i + 1, last)] - fringes.x[i == 0 ? 0 : i - 1];
    const double part = (fringes.x[i] - fringes.x.front()) / fringes.Range();
    weights[i] = width * (1.0 - std::cos(2.0 * std::numbers::pi * part));
  }
  Detrend(fringes.x, weights, values);
  fringes.weight = std::accumulate(weights.begin(), weights.end(), 0.0);
  fringes.weighted.resize(values.size());
  std::ranges::transform(values, weights, fringes.weighted.begin(), std::multiplies<>());
  return fringes;
}

// Puts the fringes on an even grid, each point shared between its two neighbours, and transforms.
void Transform(const Fringes& fringes, FourierThickness& result) {
  const double step =
      std::max(kGridStep, fringes.Range() / static_cast<double>(kTransformLength - 2));
  std::array<double, kTransformLength> grid{};
  for (std::size_t i = 0; i < fringes.x.size(); ++i) {
    const double place = (fringes.x[i] - fringes.x.front()) / step;
    const auto low = static_cast<std::size_t>(place);
    const double part = place - static_cast<double>(low);
    grid[low] += fringes.weighted[i] * (1.0 - part);
    grid[low + 1] += fringes.weighted[i] * part;
  }
  gsl_fft_real_radix2_transform(grid.data(), 1, kTransformLength);
  result.stepNm = 1.0 / (static_cast<double>(kTransformLength) * step);
  const auto count =
      std::min(kTransformLength / 2 - 1,
               static_cast<std::size_t>(
                   result.stepNm > 0.0 ? FourierThickness::kHighestNm / result.stepNm : 0.0));
  result.amplitude.resize(count + 1);
  for (std::size_t i = 0; i <= count; ++i) {
    const double imaginary = i == 0 ? 0.0 : grid[kTransformLength - i];
    // Sharing a point between two places is a triangle, whose transform is sinc squared.
    const double angle =
        std::numbers::pi * static_cast<double>(i) / static_cast<double>(kTransformLength);
    const double sinc = i == 0 ? 1.0 : std::sin(angle) / angle;
    result.amplitude[i] = 2.0 * std::hypot(grid[i], imaginary) / (fringes.weight * sinc * sinc);
  }
}

// Where a parabola through three values an even step apart has its summit, in steps from the
// middle one, which is the highest.
double Summit(double before, double at, double after) {
  const double bend = 2.0 * at - before - after;
  return bend > 0.0 ? std::clamp(0.5 * (after - before) / bend, -1.0, 1.0) : 0.0;
}

void FindPeaks(const Fringes& fringes, FourierThickness& result) {
  // Less than one whole fringe in the range is no frequency.
  const auto first = static_cast<std::size_t>(std::ceil(1.0 / fringes.Range() / result.stepNm));
  const auto& amplitude = result.amplitude;
  if (first + 2 >= amplitude.size()) {
    return;
  }
  std::vector<double> sorted(amplitude.begin() + static_cast<std::ptrdiff_t>(first),
                             amplitude.end());
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::ranges::nth_element(sorted, middle);
  for (std::size_t i = std::max<std::size_t>(first, 1); i + 1 < amplitude.size(); ++i) {
    if (amplitude[i] > amplitude[i - 1] && amplitude[i] >= amplitude[i + 1] && *middle > 0.0) {
      const double place =
          static_cast<double>(i) + Summit(amplitude[i - 1], amplitude[i], amplitude[i + 1]);
      result.peaks.push_back({place * result.stepNm, amplitude[i], amplitude[i] / *middle});
    }
  }
  std::ranges::sort(result.peaks, std::greater<>(), &FourierPeak::amplitude);
  result.peaks.resize(std::min(result.peaks.size(), FourierThickness::kMostPeaks));
  if (result.peaks.empty()) {
    return;
  }
  FourierPeak& strongest = result.peaks.front();
  double step = result.stepNm / 2.0;
  while (step > 0.5) {
    strongest.thicknessNm += step * Summit(fringes.Amplitude(strongest.thicknessNm - step),
                                           fringes.Amplitude(strongest.thicknessNm),
                                           fringes.Amplitude(strongest.thicknessNm + step));
    step /= 5.0;
  }
}

}  // namespace

std::vector<FourierPeak> FourierThickness::Candidates() const {
  std::vector<FourierPeak> candidates;
  std::ranges::copy_if(peaks, std::back_inserter(candidates), [this](const FourierPeak& peak) {
    return peak.ratio >= kNoiseRatio &&
           peak.amplitude >= kWeakestCandidate * peaks.front().amplitude;
  });
  return candidates;
}

std::optional<FourierThickness> TransformFringes(const ReflectanceSpectrum& spectrum,
                                                 const ReflectanceSpectrum& index, int fromNm,
                                                 int toNm) {
  const std::optional<Fringes> fringes = FringesOverX(spectrum, index, fromNm, toNm);
  if (!fringes) {
    return std::nullopt;
  }
  FourierThickness result;
  Transform(*fringes, result);
  FindPeaks(*fringes, result);
  return result;
}

}  // namespace vexa

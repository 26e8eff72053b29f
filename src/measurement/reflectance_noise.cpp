// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/reflectance_noise.h"

#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

// The variance of single counts of a frame.
double VarianceOf(const RawSpectrum& counts) {
  constexpr double kOfThirdDifferences = 20.0;
  double sum = 0.0;
  const auto values = counts.Values();
  for (std::size_t i = 3; i < values.size(); ++i) {
    const double difference = values[i] - 3.0 * values[i - 1] + 3.0 * values[i - 2] - values[i - 3];
    sum += difference * difference;
  }
  return sum / kOfThirdDifferences / static_cast<double>(values.size() - 3);
}

double LinesOf(const FrameConditions& taken) {
  return std::max<double>(taken.averagingCount, 1.0);
}

}  // namespace

ReflectanceSpectrum ReflectanceNoise(const VEXATYPE& state, const RawSpectrum& sample,
                                     const SampleBasis& basis) {
  const int shift = std::clamp<int>(basis.conditions.frame.calibrationShiftNm, 0, 7);
  const double backgroundLines = LinesOf(state.backgroundTaken);
  const double referenceLines = LinesOf(state.referenceTaken);
  const double dark = VarianceOf(state.background) * backgroundLines;
  const double bright = VarianceOf(state.reference) * referenceLines;
  double light = 0.0;
  for (int nm = RawSpectrum::kFirstNm; nm <= RawSpectrum::kLastNm; ++nm) {
    light += (state.reference[nm] - state.background[nm]) / RawSpectrum::kCount;
  }
  const double perCount = light > 0.0 ? std::max(bright - dark, 0.0) / light : 0.0;
  ReflectanceSpectrum noise;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    const double background = state.background[nm + shift];
    const double r = state.reference[nm + shift] - background;
    const double s = sample[nm + shift] - background;
    const double ratio = s / r;
    const double variance = (dark + perCount * std::max(s, 0.0)) / LinesOf(basis.conditions.frame) +
                            ratio * ratio * (dark + perCount * std::max(r, 0.0)) / referenceLines +
                            (1.0 - ratio) * (1.0 - ratio) * dark / backgroundLines;
    noise[nm] = std::abs(basis.referenceReflectance[nm] / r) * std::sqrt(variance);
    if (!std::isfinite(noise[nm]) || noise[nm] <= 0.0) {
      return {};
    }
  }
  return noise;
}

}  // namespace vexa

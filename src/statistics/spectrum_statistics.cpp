// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/spectrum_statistics.h"

#include <algorithm>
#include <cmath>

#include "statistics/moments.h"

namespace vexa::statistics {

double SpectrumStatistics::MeanS() const {
  double squares = 0.0;
  for (const double value : s.Values()) {
    squares += value * value;
  }
  return std::sqrt(squares / static_cast<double>(ReflectanceSpectrum::kCount));
}

Result<SpectrumStatistics> ComputeSpectrumStatistics(std::span<const ReflectanceSpectrum> spectra) {
  if (spectra.size() < 2) {
    return Refusal::kTooFewValues;
  }
  SpectrumStatistics statistics;
  statistics.n = spectra.size();
  std::vector<double> values(spectra.size());
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    std::ranges::transform(spectra, values.begin(),
                           [nm](const ReflectanceSpectrum& spectrum) { return spectrum[nm]; });
    if (!AreNumbers(values)) {
      return Refusal::kNotANumber;
    }
    statistics.mean[nm] = static_cast<double>(ComputeMoments(values).mean);
    statistics.s[nm] = StandardDeviation(values);
    const auto [lower, upper] = std::ranges::minmax(values);
    statistics.lower[nm] = lower;
    statistics.upper[nm] = upper;
  }
  return statistics;
}

Result<SpectrumRepeatability> ComputeRepeatability(
    std::span<const std::vector<ReflectanceSpectrum>> series) {
  if (series.size() < 2) {
    return Refusal::kTooFewGroups;
  }
  std::vector<SpectrumStatistics> each;
  for (const auto& spectra : series) {
    if (spectra.size() != series.front().size()) {
      return Refusal::kUnbalanced;
    }
    const auto statistics = ComputeSpectrumStatistics(spectra);
    if (!statistics) {
      return statistics.Why();
    }
    each.push_back(*statistics);
  }
  SpectrumRepeatability result;
  std::vector<double> means(each.size());
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    double within = 0.0;
    for (std::size_t i = 0; i < each.size(); ++i) {
      within += each[i].s[nm] * each[i].s[nm] / static_cast<double>(each.size());
      means[i] = each[i].mean[nm];
    }
    const double ofMeans = StandardDeviation(means);
    const double between =
        std::max(ofMeans * ofMeans - within / static_cast<double>(each.front().n), 0.0);
    result.repeatability[nm] = std::sqrt(within);
    result.reproducibility[nm] = std::sqrt(within + between);
  }
  return result;
}

}  // namespace vexa::statistics

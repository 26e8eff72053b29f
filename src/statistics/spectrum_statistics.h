// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/spectrum.h"
#include "statistics/refusal.h"

namespace vexa::statistics {

/// Several spectra at each wavelength, in the unit of the spectra.
struct SpectrumStatistics {
  std::size_t n = 0;
  ReflectanceSpectrum mean;
  ReflectanceSpectrum s;      ///< sample standard deviation, with n - 1
  ReflectanceSpectrum lower;  ///< of the envelope: the least value
  ReflectanceSpectrum upper;  ///< the greatest

  /// The root of the mean square of s over the range.
  [[nodiscard]] double MeanS() const;
};

/// Of two spectra at least; refuses kNotANumber, kTooFewValues.
Result<SpectrumStatistics> ComputeSpectrumStatistics(std::span<const ReflectanceSpectrum> spectra);

/// Standard deviations at each wavelength of series that differ in operator, day or place.
struct SpectrumRepeatability {
  ReflectanceSpectrum repeatability;    ///< within a series
  ReflectanceSpectrum reproducibility;  ///< within and between series together, never below it
};

/// ISO 5725-2: sr² is the mean of the variances within the series, sR² = sr² + sL² with sL² = the
/// variance of the series' means - sr² / n, at least 0. Two series at least, equally long, of two
/// spectra at least; refuses kNotANumber, kTooFewGroups, kTooFewValues, kUnbalanced.
Result<SpectrumRepeatability> ComputeRepeatability(
    std::span<const std::vector<ReflectanceSpectrum>> series);

}  // namespace vexa::statistics

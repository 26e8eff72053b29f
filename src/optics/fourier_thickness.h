// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "base/spectrum.h"

namespace vexa {

/// A fringe that stands out of its neighbours in the transform.
struct FourierPeak {
  double thicknessNm = 0.0;
  double amplitude = 0.0;  ///< of the fringe, percent of reflectance
  double ratio = 0.0;      ///< amplitude over the median of the transform
};

/// The Fourier amplitude of a spectrum over the thickness of a film.
struct FourierThickness {
  double stepNm = 0.0;
  std::vector<double> amplitude;   ///< percent, at 0, step, 2 step, ... up to 60 um
  std::vector<FourierPeak> peaks;  ///< strongest first, at most kMostPeaks

  /// The peaks that may be films: neither noise nor far below the strongest.
  [[nodiscard]] std::vector<FourierPeak> Candidates() const;

  static constexpr std::size_t kMostPeaks = 8;
  static constexpr double kNoiseRatio = 5.0;        ///< a peak's below it is noise
  static constexpr double kWeakestCandidate = 0.1;  ///< of the strongest peak
  static constexpr double kHighestNm = 60000.0;
};

/// Transforms the fringes between two wavelengths. A film of thickness d is one frequency over
/// x = 2 n(w) / w, where the phase between its two reflections is 2 pi x d: the spectrum is freed
/// of its parabola in x, weighted with a Hann window, put on an even grid of x and transformed with
/// zeros behind it; the strongest peak is then found to a fraction of a nanometre in the sum over
/// the points themselves. Two thicknesses are told apart when they differ by about 2 / (range of
/// x), some 600 nm for an index of 1.6.
///
/// Nothing when the points are fewer than 20, a value or an
/// index is not finite, an index is not positive, or n / w does not fall with the wavelength.
[[nodiscard]] std::optional<FourierThickness> TransformFringes(
    const ReflectanceSpectrum& spectrum, const ReflectanceSpectrum& index,
    int fromNm = ReflectanceSpectrum::kFirstNm, int toNm = ReflectanceSpectrum::kLastNm);

}  // namespace vexa

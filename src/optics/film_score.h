// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <stop_token>
#include <vector>

#include "optics/film_fit.h"

namespace vexa {

inline constexpr double kSmallestFilmScale = 0.5;
inline constexpr double kGreatestFilmScale = 1.6;

/// The scale and the offset with which a model fits measured values best.
struct LinearMatch {
  double scale = 1.0;
  double offset = 0.0;
  double sumOfSquares = 0.0;
};

/// As far as they are free; the scale stays within 0.5 to 1.6.
[[nodiscard]] LinearMatch MatchLinear(std::span<const double> model,
                                      std::span<const double> measured, bool scaleFree,
                                      bool offsetFree);

/// The root of the mean square; 0 of nothing.
[[nodiscard]] double Rms(std::span<const double> values);

/// The standard deviation of the noise of single points, from third differences, in which smooth
/// curves vanish. At least four values.
[[nodiscard]] double PointNoise(std::span<const double> values);

/// The root mean square of what a smooth model leaves of measured values: with its scale and offset
/// as far as they are free, a free scale also changing evenly over the range.
[[nodiscard]] double RmsOfSmooth(std::span<const double> model, std::span<const double> measured,
                                 const FilmFitOptions& options);

/// The reflectance of layers so thick and so uneven that no fringes are left, at each nanometre of
/// the options' range, in percent. It is as smooth as the indices; what lies between 8 nm is
/// interpolated.
[[nodiscard]] std::vector<double> IncoherentReflectance(const FilmStack& stack,
                                                        const FilmFitOptions& options);

/// Thrown where a fit is given up.
struct FitStopped {};

/// How well thicknesses explain a spectrum at every `stepNm`-th wavelength, without the slit: what
/// a search for starting points asks many times. The options must outlive it.
class FilmScore {
 public:
  /// `incoherent` is IncoherentReflectance. What it computes throws FitStopped once a stop is
  /// requested.
  FilmScore(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
            const FilmFitOptions& options, std::span<const double> incoherent, int stepNm,
            const std::stop_token& stop);

  /// The sum of squares with the best scale and offset.
  [[nodiscard]] double operator()(const std::vector<double>& thicknessesNm);

  /// The same with the coherent part damped as the spectrum has it: `visibility` 0 to 1.
  [[nodiscard]] double Damped(const std::vector<double>& thicknessesNm, double& visibility);

 private:
  void Reflect(const std::vector<double>& thicknessesNm);

  const FilmFitOptions& options_;
  std::stop_token stop_;
  FilmModel model_;
  std::vector<double> measured_;
  std::vector<double> values_;
  std::vector<double> incoherent_;
  FilmState state_;
};

}  // namespace vexa

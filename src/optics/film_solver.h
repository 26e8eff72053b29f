// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "optics/film_fit.h"
#include "optics/film_score.h"
#include "optics/least_squares.h"

namespace vexa {

/// A free parameter: a layer's thickness, or one of the others.
struct FilmParameter {
  enum Kind { kThickness, kScale, kOffset, kSpread, kIndex } kind;
  std::size_t layer = 0;
};

/// A place in the space of a fit.
struct FilmPoint {
  FilmState state;
  double scale = 1.0;
  double offset = 0.0;
};

/// A minimum.
struct FilmSolution {
  FilmPoint point;
  std::vector<FilmParameter> parameters;
  LeastSquaresResult result;
  double rms = 0.0;  ///< of the residual without weights, percent
};

/// Goes from a place to the minimum next to it: what FitFilm does once it has a start. Takes what
/// FitFilm has checked; the ranges and the options must outlive it.
class FilmSolver {
 public:
  FilmSolver(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
             std::span<const ThicknessRange> ranges, const FilmFitOptions& options,
             const std::stop_token& stop);

  [[nodiscard]] std::span<const double> Measured() const { return measured_; }

  [[nodiscard]] std::vector<FilmParameter> FreeParameters(bool withSpread) const;

  /// The minimum next to a point, its scale within the limits; nothing when it lies outside the
  /// ranges. Throws FitStopped once a stop is requested.
  [[nodiscard]] std::optional<FilmSolution> Solve(const FilmPoint& start,
                                                  const std::vector<FilmParameter>& parameters,
                                                  const LeastSquaresLimits& limits);

  /// Measured less model.
  [[nodiscard]] std::vector<double> Residuals(const FilmPoint& point);

  /// The model of a state, valid until the next call, and how it matches the measured values.
  [[nodiscard]] std::span<const double> Reflect(const FilmState& state);
  [[nodiscard]] LinearMatch Match(const FilmState& state);

  /// Weights for what is solved next, from the noise at each wavelength, which is above 0, or from
  /// the size of the residuals around it.
  void WeighBy(const ReflectanceSpectrum& noise);
  void WeighByResiduals(std::span<const double> residuals);

  /// How far each parameter moves when all wavelengths are wrong by their uncertainty: the change
  /// of the spectrum carried through the linearised fit, (J^T J)^-1 J^T (dR/dw u).
  [[nodiscard]] std::vector<double> WavelengthShifts(const FilmSolution& best);

 private:
  [[nodiscard]] bool IsSensible(const FilmPoint& point) const;
  [[nodiscard]] bool IsInside(const FilmPoint& point) const;
  bool Evaluate(const FilmPoint& start, const std::vector<FilmParameter>& parameters,
                std::span<const double> at, std::span<double> residuals,
                std::span<double> jacobian);
  void FillJacobian(const FilmPoint& point, const std::vector<FilmParameter>& parameters,
                    std::span<double> jacobian);

  std::span<const ThicknessRange> ranges_;
  const FilmFitOptions& options_;
  std::stop_token stop_;
  FilmModel model_;
  std::vector<double> measured_;
  std::vector<double> values_;
  std::vector<double> shifted_;
  std::vector<double> slopes_;
  std::optional<FilmState> evaluated_;  // of which the values and the slopes are
  std::vector<double> rootWeights_;
};

}  // namespace vexa

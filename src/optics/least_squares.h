// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace vexa {

/// A sum of squares to be made as small as possible.
struct LeastSquaresProblem {
  std::size_t points = 0;  ///< not fewer than there are parameters
  /// Fills `points` residuals and, unless it is empty, the Jacobian: a row a point, a column a
  /// parameter. False where the parameters have no finite residuals; such a step is not taken.
  std::function<bool(std::span<const double> parameters, std::span<double> residuals,
                     std::span<double> jacobian)>
      evaluate;
};

struct LeastSquaresResult {
  std::vector<double> parameters;
  double sumOfSquares = 0.0;
  /// (J^T J)^-1 at the minimum, row by row; times the variance of a residual it is the covariance.
  std::vector<double> covariance;

  [[nodiscard]] double Covariance(std::size_t row, std::size_t column) const {
    return covariance[row * parameters.size() + column];
  }
};

/// When the search ends.
struct LeastSquaresLimits {
  int iterations = 100;
  double step = 1e-10;      ///< relative change of the parameters
  double gradient = 1e-12;  ///< relative size of the gradient
};

/// The minimum that Levenberg's and Marquardt's method finds from `start` (GSL's
/// multifit_nlinear: trust region, QR). Nothing when the start has no finite residuals, there are
/// fewer points than parameters, or the iterations do not reach a minimum.
[[nodiscard]] std::optional<LeastSquaresResult> SolveLeastSquares(
    const LeastSquaresProblem& problem, std::span<const double> start,
    const LeastSquaresLimits& limits = {});

}  // namespace vexa

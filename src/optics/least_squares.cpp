// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/least_squares.h"

#include <gsl/gsl_blas.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_multifit_nlinear.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace vexa {
namespace {

// Residuals of parameters that have none: the solver ends at a callback's fault, but it takes no
// step that makes the sum greater.
constexpr double kForbidden = 1e100;

struct Scratch {
  const LeastSquaresProblem* problem;
  std::vector<double> residuals;
};

std::span<const double> Values(const gsl_vector* vector) {
  return {vector->data, vector->size};
}

// GSL's own vectors and matrices made by its allocators lie without gaps, those of a workspace do
// too; the two callbacks rely on it.
int Residuals(const gsl_vector* parameters, void* context, gsl_vector* residuals) {
  const auto* scratch = static_cast<Scratch*>(context);
  if (!scratch->problem->evaluate(Values(parameters), {residuals->data, residuals->size}, {})) {
    gsl_vector_set_all(residuals, kForbidden);
  }
  return GSL_SUCCESS;
}

int Jacobian(const gsl_vector* parameters, void* context, gsl_matrix* jacobian) {
  auto* scratch = static_cast<Scratch*>(context);
  return scratch->problem->evaluate(Values(parameters), scratch->residuals,
                                    {jacobian->data, jacobian->size1 * jacobian->size2})
             ? GSL_SUCCESS
             : GSL_EDOM;
}

template <typename T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

}  // namespace

std::optional<LeastSquaresResult> SolveLeastSquares(const LeastSquaresProblem& problem,
                                                    std::span<const double> start,
                                                    const LeastSquaresLimits& limits) {
  // GSL ends the program on a fault unless it is told to return it.
  static const auto kNoHandler = gsl_set_error_handler_off();
  (void)kNoHandler;
  const std::size_t count = start.size();
  if (count == 0 || problem.points < count) {
    return std::nullopt;
  }
  Scratch scratch{&problem, std::vector<double>(problem.points)};
  gsl_multifit_nlinear_fdf system{};
  system.f = Residuals;
  system.df = Jacobian;
  system.n = problem.points;
  system.p = count;
  system.params = &scratch;
  const gsl_multifit_nlinear_parameters parameters = gsl_multifit_nlinear_default_parameters();
  const Owned<gsl_multifit_nlinear_workspace> workspace(
      gsl_multifit_nlinear_alloc(gsl_multifit_nlinear_trust, &parameters, problem.points, count),
      gsl_multifit_nlinear_free);
  const Owned<gsl_matrix> covariance(gsl_matrix_alloc(count, count), gsl_matrix_free);
  const gsl_vector_const_view first = gsl_vector_const_view_array(start.data(), count);
  if (gsl_multifit_nlinear_init(&first.vector, &system, workspace.get()) != GSL_SUCCESS ||
      gsl_vector_get(gsl_multifit_nlinear_residual(workspace.get()), 0) == kForbidden) {
    return std::nullopt;
  }
  int reason = 0;
  const int status =
      gsl_multifit_nlinear_driver(static_cast<std::size_t>(limits.iterations), limits.step,
                                  limits.gradient, 0.0, nullptr, nullptr, &reason, workspace.get());
  // No further progress means that the minimum is reached as nearly as rounding lets it; with the
  // first step already, that the start was the minimum.
  const bool atStart = status == GSL_EMAXITER && reason == GSL_ENOPROG;
  if (status != GSL_SUCCESS && status != GSL_ENOPROG && !atStart) {
    return std::nullopt;
  }
  const gsl_vector* residuals = gsl_multifit_nlinear_residual(workspace.get());
  LeastSquaresResult result;
  gsl_blas_ddot(residuals, residuals, &result.sumOfSquares);
  gsl_multifit_nlinear_covar(gsl_multifit_nlinear_jac(workspace.get()), 0.0, covariance.get());
  const auto found = Values(gsl_multifit_nlinear_position(workspace.get()));
  result.parameters.assign(found.begin(), found.end());
  result.covariance.assign(covariance->data, covariance->data + count * count);
  if (!std::isfinite(result.sumOfSquares) ||
      !std::ranges::all_of(result.parameters, [](double value) { return std::isfinite(value); })) {
    return std::nullopt;
  }
  return result;
}

}  // namespace vexa

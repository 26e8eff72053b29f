// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_solver.h"

#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

constexpr int kNoiseReachNm = 50;

double& Value(FilmPoint& point, const FilmParameter& parameter) {
  switch (parameter.kind) {
    case FilmParameter::kThickness:
      return point.state.thicknessesNm[parameter.layer];
    case FilmParameter::kScale:
      return point.scale;
    case FilmParameter::kOffset:
      return point.offset;
    case FilmParameter::kSpread:
      return point.state.spread;
    case FilmParameter::kIndex:
      break;
  }
  return point.state.index;
}

}  // namespace

FilmSolver::FilmSolver(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                       std::span<const ThicknessRange> ranges, const FilmFitOptions& options,
                       const std::stop_token& stop)
    : ranges_(ranges),
      options_(options),
      stop_(stop),
      model_(stack, options.fromNm, options.toNm, 1, options.bandwidthNm),
      values_(model_.Points()),
      shifted_(model_.Points()),
      slopes_(model_.Points() * (model_.Layers() + 1)),
      rootWeights_(model_.Points(), 1.0) {
  for (std::size_t i = 0; i < model_.Points(); ++i) {
    measured_.push_back(spectrum[model_.Nm(i)]);
  }
}

std::vector<FilmParameter> FilmSolver::FreeParameters(bool withSpread) const {
  std::vector<FilmParameter> free;
  for (std::size_t j = 0; j < ranges_.size(); ++j) {
    if (!ranges_[j].IsFixed()) {
      free.push_back({FilmParameter::kThickness, j});
    }
  }
  const auto add = [&free](bool wanted, FilmParameter::Kind kind) {
    if (wanted) {
      free.push_back({kind, 0});
    }
  };
  add(options_.scaleFree, FilmParameter::kScale);
  add(options_.offsetFree, FilmParameter::kOffset);
  add(withSpread, FilmParameter::kSpread);
  add(options_.indexFree, FilmParameter::kIndex);
  return free;
}

bool FilmSolver::IsSensible(const FilmPoint& point) const {
  return std::ranges::all_of(point.state.thicknessesNm,
                             [](double nm) { return nm >= 0.0 && nm < 2.0 * kMostFilmNm; }) &&
         point.scale > 0.0 && point.scale < 10.0 && std::abs(point.state.spread) < 0.3 &&
         point.state.index > 0.5 && point.state.index < 2.0;
}

bool FilmSolver::Evaluate(const FilmPoint& start, const std::vector<FilmParameter>& parameters,
                          std::span<const double> at, std::span<double> residuals,
                          std::span<double> jacobian) {
  FilmPoint point = start;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    Value(point, parameters[i]) = at[i];
  }
  if (!IsSensible(point) || stop_.stop_requested()) {
    return false;
  }
  // The solver asks for the residuals of a place first, and mostly for the Jacobian next.
  if (evaluated_ != point.state) {
    model_.Reflect(point.state, values_, slopes_);
    evaluated_ = point.state;
  }
  for (std::size_t i = 0; i < values_.size(); ++i) {
    residuals[i] = rootWeights_[i] * (point.scale * values_[i] + point.offset - measured_[i]);
  }
  if (!jacobian.empty()) {
    FillJacobian(point, parameters, jacobian);
  }
  return true;
}

void FilmSolver::FillJacobian(const FilmPoint& point, const std::vector<FilmParameter>& parameters,
                              std::span<double> jacobian) {
  constexpr double kIndexStep = 1e-5;
  if (options_.indexFree) {
    FilmState state = point.state;
    state.index += kIndexStep;
    model_.Reflect(state, shifted_);
  }
  const std::size_t columns = model_.Layers() + 1;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    const auto slope = [&](const FilmParameter& parameter) {
      switch (parameter.kind) {
        case FilmParameter::kThickness:
          return point.scale * slopes_[i * columns + parameter.layer];
        case FilmParameter::kScale:
          return values_[i];
        case FilmParameter::kOffset:
          return 1.0;
        case FilmParameter::kSpread:
          return point.scale * slopes_[i * columns + columns - 1];
        case FilmParameter::kIndex:
          break;
      }
      return point.scale * (shifted_[i] - values_[i]) / kIndexStep;
    };
    for (std::size_t k = 0; k < parameters.size(); ++k) {
      jacobian[i * parameters.size() + k] = rootWeights_[i] * slope(parameters[k]);
    }
  }
}

std::optional<FilmSolution> FilmSolver::Solve(const FilmPoint& start,
                                              const std::vector<FilmParameter>& parameters,
                                              const LeastSquaresLimits& limits) {
  if (stop_.stop_requested()) {
    throw FitStopped();
  }
  FilmPoint first = start;
  std::vector<double> values;
  values.reserve(parameters.size());
  for (const FilmParameter& parameter : parameters) {
    values.push_back(Value(first, parameter));
  }
  FilmSolution solution{start, parameters, {}, 0.0};
  if (!parameters.empty()) {
    const LeastSquaresProblem problem{model_.Points(), [&](auto at, auto residuals, auto jacobian) {
                                        return Evaluate(start, parameters, at, residuals, jacobian);
                                      }};
    const auto result = SolveLeastSquares(problem, values, limits);
    if (!result) {
      return std::nullopt;
    }
    solution.result = *result;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      Value(solution.point, parameters[i]) = result->parameters[i];
    }
  }
  if (!IsInside(solution.point)) {
    return std::nullopt;
  }
  const bool scaleFree =
      std::ranges::count(parameters, FilmParameter::kScale, &FilmParameter::kind) > 0;
  const double limited = std::clamp(solution.point.scale, kSmallestFilmScale, kGreatestFilmScale);
  if (scaleFree && limited != solution.point.scale) {
    std::vector<FilmParameter> fewer = parameters;
    std::erase_if(fewer, [](const FilmParameter& p) { return p.kind == FilmParameter::kScale; });
    solution.point.scale = limited;
    return Solve(solution.point, fewer, limits);
  }
  solution.point.state.spread = std::abs(solution.point.state.spread);
  solution.rms = Rms(Residuals(solution.point));
  return solution;
}

bool FilmSolver::IsInside(const FilmPoint& point) const {
  constexpr double kBeyondNm = 1.0;  // what the noise may move a film at the end of its range
  for (std::size_t j = 0; j < ranges_.size(); ++j) {
    const double nm = point.state.thicknessesNm[j];
    if (nm < ranges_[j].fromNm - kBeyondNm || nm > ranges_[j].toNm + kBeyondNm) {
      return false;
    }
  }
  return true;
}

std::vector<double> FilmSolver::Residuals(const FilmPoint& point) {
  (void)Reflect(point.state);
  std::vector<double> residuals;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    residuals.push_back(measured_[i] - point.scale * values_[i] - point.offset);
  }
  return residuals;
}

// About 1: the solver stops by the size of its steps.
void FilmSolver::WeighBy(const ReflectanceSpectrum& noise) {
  std::vector<double> used;
  used.reserve(model_.Points());
  for (std::size_t i = 0; i < model_.Points(); ++i) {
    used.push_back(noise[model_.Nm(i)]);
  }
  const double common = Rms(used);
  std::ranges::transform(used, rootWeights_.begin(), [common](double n) { return common / n; });
}

void FilmSolver::WeighByResiduals(std::span<const double> residuals) {
  const auto last = static_cast<std::ptrdiff_t>(residuals.size()) - 1;
  for (std::ptrdiff_t i = 0; i <= last; ++i) {
    const auto low = std::max<std::ptrdiff_t>(i - kNoiseReachNm, 0);
    const auto high = std::min<std::ptrdiff_t>(i + kNoiseReachNm, last);
    const double local = Rms(
        residuals.subspan(static_cast<std::size_t>(low), static_cast<std::size_t>(high - low + 1)));
    // No instrument is quieter; a computed spectrum may leave nothing at all.
    constexpr double kLeastNoise = 1e-6;
    rootWeights_[static_cast<std::size_t>(i)] = 1.0 / std::max(local, kLeastNoise);
  }
}

std::vector<double> FilmSolver::WavelengthShifts(const FilmSolution& best) {
  const std::size_t count = best.parameters.size();
  std::vector<double> residuals(model_.Points());
  std::vector<double> jacobian(model_.Points() * count);
  std::vector<double> shifts(count);
  if (count == 0 ||
      !Evaluate(best.point, best.parameters, best.result.parameters, residuals, jacobian)) {
    return shifts;
  }
  const std::size_t columns = model_.Layers() + 1;
  std::vector<double> projected(count);
  for (std::size_t i = 0; i < model_.Points(); ++i) {
    double change = 0.0;
    for (std::size_t j = 0; j < model_.Layers(); ++j) {
      change += slopes_[i * columns + j] * best.point.state.thicknessesNm[j];
    }
    change *= rootWeights_[i] * best.point.scale * options_.wavelengthUncertaintyNm *
              model_.GroupFactor(i) / model_.Nm(i);
    for (std::size_t k = 0; k < count; ++k) {
      projected[k] += jacobian[i * count + k] * change;
    }
  }
  for (std::size_t row = 0; row < count; ++row) {
    for (std::size_t k = 0; k < count; ++k) {
      shifts[row] += best.result.Covariance(row, k) * projected[k];
    }
  }
  return shifts;
}

std::span<const double> FilmSolver::Reflect(const FilmState& state) {
  if (evaluated_ != state) {
    evaluated_.reset();
    model_.Reflect(state, values_);
  }
  return values_;
}

LinearMatch FilmSolver::Match(const FilmState& state) {
  return MatchLinear(Reflect(state), measured_, options_.scaleFree, options_.offsetFree);
}

}  // namespace vexa

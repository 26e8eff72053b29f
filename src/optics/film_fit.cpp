// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_fit.h"

#include <gsl/gsl_cdf.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <optional>
#include <thread>

#include "base/translation.h"
#include "optics/film_seeds.h"
#include "optics/least_squares.h"

namespace vexa {
namespace {

constexpr int kFewestPoints = 20;
constexpr std::size_t kMostSolved = 4;
constexpr std::size_t kMostAlternatives = 3;
constexpr double kHopelessRatio = 3.0;  // of a seed's sum of squares to the best one's
constexpr double kCorrelated = 0.95;
constexpr double kNearlyAsGood = 1.05;  // of the root mean squares
constexpr double kBetterBy = 16.0;      // in chi squared, for one more parameter
constexpr double kPoorNoises = 2.5;
constexpr double kPoorPart = 0.03;        // of what the film explains
constexpr double kNoFilmRatio = 1.08;     // of the sums of squares without and with the film
constexpr double kNoFilmPart = 0.4;       // of the sum of squares that a poor fit may leave
constexpr double kRoughStep = 1e-5;       // relative, of what is refined once more
constexpr double kUneven = 0.4;           // square of the phases' scatter in radians
constexpr double kSmallestSpread = 1e-3;  // to start from: at 0 there is no slope
constexpr int kNoiseReachNm = 50;
constexpr double kSmallestScale = 0.5;
constexpr double kGreatestScale = 1.6;

/// A free parameter: a layer's thickness, or one of the others.
struct Parameter {
  enum Kind { kThickness, kScale, kOffset, kSpread, kIndex } kind;
  std::size_t layer = 0;
};

struct Point {
  FilmState state;
  double scale = 1.0;
  double offset = 0.0;
};

struct Solution {
  Point point;
  std::vector<Parameter> parameters;
  LeastSquaresResult result;
  double rms = 0.0;  // not weighted
};

QString ParameterText(const Parameter& parameter) {
  switch (parameter.kind) {
    case Parameter::kThickness:
      return Text::tr("膜厚%1").arg(parameter.layer + 1);
    case Parameter::kScale:
      return Text::tr("倍率");
    case Parameter::kOffset:
      return Text::tr("オフセット");
    case Parameter::kSpread:
      return Text::tr("膜厚むら");
    case Parameter::kIndex:
      return Text::tr("屈折率");
  }
  return {};
}

double Rms(std::span<const double> values) {
  return values.empty()
             ? 0.0
             : std::sqrt(std::inner_product(values.begin(), values.end(), values.begin(), 0.0) /
                         static_cast<double>(values.size()));
}

// The noise of single points, from third differences, in which smooth curves vanish.
double NoiseOf(std::span<const double> values) {
  std::vector<double> differences;
  for (std::size_t i = 3; i < values.size(); ++i) {
    differences.push_back((values[i] - 3.0 * values[i - 1] + 3.0 * values[i - 2] - values[i - 3]) /
                          std::sqrt(20.0));
  }
  return Rms(differences);
}

class Fitter {
 public:
  Fitter(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
         std::span<const ThicknessRange> ranges, const FilmFitOptions& options)
      : spectrum_(spectrum),
        stack_(stack),
        ranges_(ranges),
        options_(options),
        model_(stack, options.fromNm, options.toNm, 1, options.bandwidthNm),
        values_(model_.Points()),
        shifted_(model_.Points()),
        slopes_(model_.Points() * (model_.Layers() + 1)),
        rootWeights_(model_.Points(), 1.0) {
    for (std::size_t i = 0; i < model_.Points(); ++i) {
      measured_.push_back(spectrum[model_.Nm(i)]);
    }
  }

  FilmFit Run() {
    std::vector<Solution> found = SolveAll();
    if (found.empty()) {
      return NoFilm();
    }
    TakeInSpread(found);
    return Judged(found);
  }

 private:
  [[nodiscard]] std::vector<Parameter> FreeParameters(bool withSpread) const {
    std::vector<Parameter> free;
    for (std::size_t j = 0; j < ranges_.size(); ++j) {
      if (!ranges_[j].IsFixed()) {
        free.push_back({Parameter::kThickness, j});
      }
    }
    const auto add = [&free](bool wanted, Parameter::Kind kind) {
      if (wanted) {
        free.push_back({kind, 0});
      }
    };
    add(options_.scaleFree, Parameter::kScale);
    add(options_.offsetFree, Parameter::kOffset);
    add(withSpread, Parameter::kSpread);
    add(options_.indexFree, Parameter::kIndex);
    return free;
  }

  static double& Value(Point& point, const Parameter& parameter) {
    switch (parameter.kind) {
      case Parameter::kThickness:
        return point.state.thicknessesNm[parameter.layer];
      case Parameter::kScale:
        return point.scale;
      case Parameter::kOffset:
        return point.offset;
      case Parameter::kSpread:
        return point.state.spread;
      case Parameter::kIndex:
        break;
    }
    return point.state.index;
  }

  [[nodiscard]] bool IsSensible(const Point& point) const {
    return std::ranges::all_of(point.state.thicknessesNm,
                               [](double nm) { return nm >= 0.0 && nm < 2.0 * kMostFilmNm; }) &&
           point.scale > 0.0 && point.scale < 10.0 && std::abs(point.state.spread) < 0.3 &&
           point.state.index > 0.5 && point.state.index < 2.0;
  }

  bool Evaluate(const Point& start, const std::vector<Parameter>& parameters,
                std::span<const double> at, std::span<double> residuals,
                std::span<double> jacobian) {
    Point point = start;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      Value(point, parameters[i]) = at[i];
    }
    if (!IsSensible(point)) {
      return false;
    }
    model_.Reflect(point.state, values_, jacobian.empty() ? std::span<double>() : slopes_);
    for (std::size_t i = 0; i < values_.size(); ++i) {
      residuals[i] = rootWeights_[i] * (point.scale * values_[i] + point.offset - measured_[i]);
    }
    if (!jacobian.empty()) {
      FillJacobian(point, parameters, jacobian);
    }
    return true;
  }

  void FillJacobian(const Point& point, const std::vector<Parameter>& parameters,
                    std::span<double> jacobian) {
    constexpr double kIndexStep = 1e-5;
    if (options_.indexFree) {
      FilmState state = point.state;
      state.index += kIndexStep;
      model_.Reflect(state, shifted_);
    }
    const std::size_t columns = model_.Layers() + 1;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      const auto slope = [&](const Parameter& parameter) {
        switch (parameter.kind) {
          case Parameter::kThickness:
            return point.scale * slopes_[i * columns + parameter.layer];
          case Parameter::kScale:
            return values_[i];
          case Parameter::kOffset:
            return 1.0;
          case Parameter::kSpread:
            return point.scale * slopes_[i * columns + columns - 1];
          case Parameter::kIndex:
            break;
        }
        return point.scale * (shifted_[i] - values_[i]) / kIndexStep;
      };
      for (std::size_t k = 0; k < parameters.size(); ++k) {
        jacobian[i * parameters.size() + k] = rootWeights_[i] * slope(parameters[k]);
      }
    }
  }

  // The minimum next to a point; nothing when it lies outside the ranges.
  std::optional<Solution> Solve(const Point& start, const std::vector<Parameter>& parameters,
                                const LeastSquaresLimits& limits) {
    Point first = start;
    std::vector<double> values;
    for (const Parameter& parameter : parameters) {
      values.push_back(Value(first, parameter));
    }
    Solution solution{start, parameters, {}, 0.0};
    if (!parameters.empty()) {
      const LeastSquaresProblem problem{
          model_.Points(), [&](auto at, auto residuals, auto jacobian) {
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
    const bool scaleFree = std::ranges::count(parameters, Parameter::kScale, &Parameter::kind) > 0;
    const double limited = std::clamp(solution.point.scale, kSmallestScale, kGreatestScale);
    if (scaleFree && limited != solution.point.scale) {
      std::vector<Parameter> fewer = parameters;
      std::erase_if(fewer, [](const Parameter& p) { return p.kind == Parameter::kScale; });
      solution.point.scale = limited;
      return Solve(solution.point, fewer, limits);
    }
    solution.point.state.spread = std::abs(solution.point.state.spread);
    solution.rms = Rms(Residuals(solution.point));
    return solution;
  }

  [[nodiscard]] bool IsInside(const Point& point) const {
    constexpr double kBeyondNm = 1.0;  // what the noise may move a film at the end of its range
    for (std::size_t j = 0; j < ranges_.size(); ++j) {
      const double nm = point.state.thicknessesNm[j];
      if (nm < ranges_[j].fromNm - kBeyondNm || nm > ranges_[j].toNm + kBeyondNm) {
        return false;
      }
    }
    return true;
  }

  std::vector<double> Residuals(const Point& point) {
    model_.Reflect(point.state, values_);
    std::vector<double> residuals;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      residuals.push_back(measured_[i] - point.scale * values_[i] - point.offset);
    }
    return residuals;
  }

  // The phase of a state in the bluest light, from the air to the substrate and back.
  [[nodiscard]] double WholePhase(const FilmState& state) const {
    double phase = 1.0;
    for (std::size_t j = 0; j < ranges_.size(); ++j) {
      phase += 4.0 * std::numbers::pi * stack_.layers[j].n[options_.fromNm] *
               state.thicknessesNm[j] / options_.fromNm;
    }
    return phase;
  }

  // The spread that takes from the fringes what a seed misses beyond the slit; 0 for next to none.
  [[nodiscard]] double SpreadOf(const FilmSeed& seed) const {
    const double middleNm = (options_.fromNm + options_.toNm) / 2.0;
    const double phase =
        WholePhase({.thicknessesNm = seed.thicknessesNm}) * options_.fromNm / middleNm;
    const double slit = phase * options_.bandwidthNm / 2.355 / middleNm;
    const double missing = -2.0 * std::log(std::max(seed.visibility, 0.01)) - slit * slit;
    return missing > kUneven + slit * slit ? std::min(std::sqrt(missing) / phase, 0.2) : 0.0;
  }

  // The minima next to the seeds, best first.
  std::vector<Solution> SolveAll() {
    std::vector<Solution> found;
    const auto seeds = FindFilmSeeds(spectrum_, stack_, ranges_, options_);
    const bool uneven = !seeds.empty() && SpreadOf(seeds.front()) > 0.0;
    for (const FilmSeed& seed : seeds) {
      if (found.size() >= kMostSolved ||
          seed.sumOfSquares > kHopelessRatio * seeds.front().sumOfSquares + 1e-9) {
        break;
      }
      Point start;
      start.state.thicknessesNm = seed.thicknessesNm;
      start.state.spread = uneven ? std::max(SpreadOf(seed), kSmallestSpread) : 0.0;
      model_.Reflect(start.state, values_);
      const LinearMatch match =
          MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree);
      start.scale = match.scale;
      start.offset = match.offset;
      if (auto solution =
              Solve(start, FreeParameters(uneven), {.iterations = 40, .step = kRoughStep})) {
        AddDistinct(std::move(*solution), found);
      }
    }
    std::ranges::sort(found, {}, &Solution::rms);
    return found;
  }

  static void AddDistinct(Solution solution, std::vector<Solution>& found) {
    constexpr double kSameNm = 2.0;
    for (Solution& other : found) {
      bool same = true;
      for (std::size_t j = 0; j < solution.point.state.thicknessesNm.size(); ++j) {
        same = same && std::abs(solution.point.state.thicknessesNm[j] -
                                other.point.state.thicknessesNm[j]) < kSameNm;
      }
      if (same) {
        if (solution.rms < other.rms) {
          other = std::move(solution);
        }
        return;
      }
    }
    found.push_back(std::move(solution));
  }

  // The spread, out of a few, that leaves the least of a fit with a matched scale; 0 when none
  // makes it better than the noise would.
  double RoughSpread(const Solution& from) {
    const double phase = WholePhase(from.point.state);
    const auto points = static_cast<double>(measured_.size());
    const double enough = points * from.rms * from.rms * (1.0 - kBetterBy / 2.0 / points);
    double best = enough;
    double spread = 0.0;
    for (const double radians : {0.3, 0.7, 1.5, 3.0}) {
      FilmState state = from.point.state;
      state.spread = std::min(radians / phase, 0.1);
      model_.Reflect(state, values_);
      const LinearMatch match =
          MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree);
      if (match.sumOfSquares < best) {
        best = match.sumOfSquares;
        spread = state.spread;
      }
    }
    return spread;
  }

  // A spread is taken in when the best fit is clearly better with it; then all get one.
  void TakeInSpread(std::vector<Solution>& found) {
    const double rough = found.front().point.state.spread > 0.0 ? 0.0 : RoughSpread(found.front());
    if (rough == 0.0) {
      return;
    }
    const auto spreadOut = [&](const Solution& from) {
      Point start = from.point;
      start.state.spread = rough;
      return Solve(start, FreeParameters(true), {.iterations = 60, .step = kRoughStep});
    };
    const auto better = spreadOut(found.front());
    const auto points = static_cast<double>(measured_.size());
    if (!better || points * (std::pow(found.front().rms / std::max(better->rms, 1e-12), 2) - 1.0) <
                       kBetterBy) {
      return;
    }
    for (Solution& solution : found) {
      if (auto with = spreadOut(solution); with && with->rms < solution.rms) {
        solution = std::move(*with);
      }
    }
    std::ranges::sort(found, {}, &Solution::rms);
  }

  // Weights from the residual's own size around each wavelength.
  void WeighBy(std::span<const double> residuals) {
    const auto last = static_cast<std::ptrdiff_t>(residuals.size()) - 1;
    for (std::ptrdiff_t i = 0; i <= last; ++i) {
      const auto low = std::max<std::ptrdiff_t>(i - kNoiseReachNm, 0);
      const auto high = std::min<std::ptrdiff_t>(i + kNoiseReachNm, last);
      const double local = Rms(residuals.subspan(static_cast<std::size_t>(low),
                                                 static_cast<std::size_t>(high - low + 1)));
      rootWeights_[static_cast<std::size_t>(i)] = local > 0.0 ? 1.0 / local : 1.0;
    }
  }

  FilmFit Judged(std::vector<Solution>& found) {
    Solution& best = found.front();
    const double quickRms = best.rms;
    WeighBy(Residuals(best.point));
    if (auto weighted = Solve(best.point, best.parameters, {.step = 1e-8})) {
      best = std::move(*weighted);
    }
    FilmFit fit;
    const std::vector<double> residuals = Residuals(best.point);
    for (std::size_t i = 0; i < residuals.size(); ++i) {
      fit.fitted.push_back(measured_[i] - residuals[i]);
    }
    fit.rms = Rms(residuals);
    fit.noise = std::min(NoiseOf(measured_), NoiseOf(residuals));
    fit.scale = best.point.scale;
    fit.offset = best.point.offset;
    fit.spread = best.point.state.spread;
    fit.index = best.point.state.index;
    FillLayers(best, fit);
    for (std::size_t i = 1; i < found.size() && i <= kMostAlternatives; ++i) {
      fit.alternatives.push_back({found[i].point.state.thicknessesNm, found[i].rms});
    }
    fit.outcome = OutcomeOf(fit, quickRms);
    if (fit.outcome == FitOutcome::kNone) {
      return NoFilm(fit);
    }
    Warn(best, fit);
    return fit;
  }

  // What is left when no thickness is told: by the bare substrate, or by films so uneven that they
  // make no fringes.
  double RmsWithoutFilm() {
    const FilmState bare{.thicknessesNm = std::vector<double>(ranges_.size(), 0.0)};
    const FilmState washedOut{.thicknessesNm = std::vector<double>(ranges_.size(), 5000.0),
                              .spread = 0.2};
    return std::min(RmsWithoutFringes(bare), RmsWithoutFringes(washedOut));
  }

  double RmsWithoutFringes(const FilmState& state) {
    model_.Reflect(state, values_);
    const LinearMatch match =
        MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree);
    if (!options_.scaleFree) {
      return std::sqrt(match.sumOfSquares / static_cast<double>(measured_.size()));
    }
    // With any scale, and one that changes evenly over the range.
    std::vector<double> ratio;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      ratio.push_back(measured_[i] / std::max(values_[i], 1e-9));
    }
    const auto count = static_cast<double>(ratio.size());
    const double mean = std::accumulate(ratio.begin(), ratio.end(), 0.0) / count;
    double slope = 0.0;
    double places = 0.0;
    for (std::size_t i = 0; i < ratio.size(); ++i) {
      const double place = static_cast<double>(i) - (count - 1.0) / 2.0;
      slope += place * ratio[i];
      places += place * place;
    }
    std::vector<double> left;
    for (std::size_t i = 0; i < ratio.size(); ++i) {
      const double place = static_cast<double>(i) - (count - 1.0) / 2.0;
      left.push_back(values_[i] * (ratio[i] - mean - place * slope / places));
    }
    return Rms(left);
  }

  FitOutcome OutcomeOf(const FilmFit& fit, double quickRms) {
    const double without = RmsWithoutFilm();
    const bool poor = fit.rms > kPoorNoises * fit.noise && fit.rms > kPoorPart * without;
    const double gain = std::pow(without / std::max(fit.rms, 1e-12), 2);
    const bool untold = std::ranges::any_of(fit.layers, [](const FittedLayer& layer) {
      return layer.statisticalNm > layer.thicknessNm / 2.0;
    });
    if (gain < kNoFilmRatio || (poor && gain < 1.0 / kNoFilmPart) || untold) {
      return FitOutcome::kNone;
    }
    if (poor) {
      return FitOutcome::kPoor;
    }
    const bool another =
        std::ranges::any_of(fit.alternatives, [&](const FitAlternative& alternative) {
          return alternative.rms < kNearlyAsGood * quickRms;
        });
    return another ? FitOutcome::kAmbiguous : FitOutcome::kOk;
  }

  void FillLayers(const Solution& best, FilmFit& fit) {
    for (const double nm : best.point.state.thicknessesNm) {
      fit.layers.push_back({nm, 0.0, 0.0});
    }
    const std::size_t count = best.parameters.size();
    const auto freedom = static_cast<double>(measured_.size() - count);
    const double variance = best.result.sumOfSquares / freedom;
    const double quantile = gsl_cdf_tdist_Pinv(0.5 + options_.confidence / 2.0, freedom);
    const std::vector<double> byWavelength = WavelengthShifts(best);
    for (std::size_t i = 0; i < count; ++i) {
      if (best.parameters[i].kind != Parameter::kThickness) {
        continue;
      }
      FittedLayer& layer = fit.layers[best.parameters[i].layer];
      layer.statisticalNm = quantile * std::sqrt(variance * best.result.Covariance(i, i));
      const bool known = best.parameters[i].layer > 0 || !options_.indexFree;
      const double byIndex = known ? layer.thicknessNm * options_.indexUncertainty : 0.0;
      layer.uncertaintyNm = std::hypot(layer.statisticalNm, byWavelength[i], byIndex);
    }
  }

  // How far each parameter moves when all wavelengths are wrong by their uncertainty: the change of
  // the spectrum carried through the linearised fit, (J^T J)^-1 J^T (dR/dw u).
  std::vector<double> WavelengthShifts(const Solution& best) {
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

  void Warn(const Solution& best, FilmFit& fit) const {
    const LeastSquaresResult& result = best.result;
    for (std::size_t i = 0; i < best.parameters.size(); ++i) {
      for (std::size_t k = i + 1; k < best.parameters.size(); ++k) {
        const double correlation =
            result.Covariance(i, k) / std::sqrt(result.Covariance(i, i) * result.Covariance(k, k));
        if (std::abs(correlation) > kCorrelated) {
          fit.warnings << Text::tr("%1と%2の相関が高く、区別できません。")
                              .arg(ParameterText(best.parameters[i]),
                                   ParameterText(best.parameters[k]));
        }
      }
    }
    if (options_.scaleFree && (fit.scale == kSmallestScale || fit.scale == kGreatestScale)) {
      fit.warnings << Text::tr("倍率が限界に達しました。");
    }
  }

  FilmFit NoFilm(FilmFit fit = {}) {
    constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
    if (fit.fitted.empty()) {
      fit.noise = NoiseOf(measured_);
      fit.rms = RmsWithoutFilm();
    }
    fit.outcome = FitOutcome::kNone;
    fit.spread = 0.0;
    fit.index = 1.0;
    fit.layers.assign(ranges_.size(), {kNotANumber, kNotANumber, kNotANumber});
    fit.alternatives.clear();
    return fit;
  }

  const ReflectanceSpectrum& spectrum_;
  const FilmStack& stack_;
  std::span<const ThicknessRange> ranges_;
  const FilmFitOptions& options_;
  FilmModel model_;
  std::vector<double> measured_;
  std::vector<double> values_;
  std::vector<double> shifted_;
  std::vector<double> slopes_;
  std::vector<double> rootWeights_;
};

bool IsUsable(const Material& material) {
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    if (!std::isfinite(material.n[nm]) || !std::isfinite(material.k[nm]) || material.n[nm] <= 0.0 ||
        material.k[nm] < 0.0) {
      return false;
    }
  }
  return true;
}

bool IsNumberWithin(double value, double low, double high) {
  return value >= low && value <= high;
}

std::optional<FilmFitFault> FaultOf(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                                    std::span<const ThicknessRange> ranges,
                                    const FilmFitOptions& options) {
  if (const auto fault = CheckFilmFit(ranges, options)) {
    return fault;
  }
  if (stack.layers.size() != ranges.size() || !IsUsable(stack.substrate) ||
      !std::ranges::all_of(stack.layers, IsUsable)) {
    return FilmFitFault::kLayers;
  }
  bool dark = true;
  for (int nm = options.fromNm; nm <= options.toNm; ++nm) {
    if (!std::isfinite(spectrum[nm]) || std::abs(spectrum[nm]) > 1e6) {
      return FilmFitFault::kSpectrum;
    }
    dark = dark && spectrum[nm] == 0.0;
  }
  return dark ? std::optional(FilmFitFault::kSpectrum) : std::nullopt;
}

}  // namespace

std::optional<FilmFitFault> CheckFilmFit(std::span<const ThicknessRange> ranges,
                                         const FilmFitOptions& options) {
  if (ranges.empty() || ranges.size() > kMostFilmLayers) {
    return FilmFitFault::kLayers;
  }
  for (const ThicknessRange& range : ranges) {
    if (!IsNumberWithin(range.fromNm, 0.0, range.toNm) ||
        !IsNumberWithin(range.toNm, range.fromNm, kMostFilmNm)) {
      return FilmFitFault::kThicknessRange;
    }
  }
  if (!ReflectanceSpectrum::Contains(options.fromNm) ||
      !ReflectanceSpectrum::Contains(options.toNm) ||
      options.toNm - options.fromNm + 1 < kFewestPoints) {
    return FilmFitFault::kWavelengths;
  }
  if (!IsNumberWithin(options.bandwidthNm, 0.0, 50.0) ||
      !IsNumberWithin(options.wavelengthUncertaintyNm, 0.0, 50.0) ||
      !IsNumberWithin(options.indexUncertainty, 0.0, 1.0) ||
      !IsNumberWithin(options.confidence, 0.5, 0.9999)) {
    return FilmFitFault::kOption;
  }
  return std::nullopt;
}

std::variant<FilmFit, FilmFitFault> FitFilm(const ReflectanceSpectrum& spectrum,
                                            const FilmStack& stack,
                                            std::span<const ThicknessRange> ranges,
                                            const FilmFitOptions& options) {
  if (const auto fault = FaultOf(spectrum, stack, ranges, options)) {
    return *fault;
  }
  return Fitter(spectrum, stack, ranges, options).Run();
}

std::vector<std::variant<FilmFit, FilmFitFault>> FitFilms(
    std::span<const ReflectanceSpectrum> spectra, const FilmStack& stack,
    std::span<const ThicknessRange> ranges, const FilmFitOptions& options) {
  std::vector<std::variant<FilmFit, FilmFitFault>> fits(spectra.size());
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t i = next++; i < spectra.size(); i = next++) {
      fits[i] = FitFilm(spectra[i], stack, ranges, options);
    }
  };
  {
    std::vector<std::jthread> threads;
    const std::size_t most = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t i = 1; i < std::min(most, spectra.size()); ++i) {
      threads.emplace_back(work);
    }
    work();
  }
  return fits;
}

QString FitOutcomeName(FitOutcome outcome) {
  switch (outcome) {
    case FitOutcome::kOk:
      return QStringLiteral("ok");
    case FitOutcome::kAmbiguous:
      return QStringLiteral("ambiguous");
    case FitOutcome::kPoor:
      return QStringLiteral("poor");
    case FitOutcome::kNone:
      break;
  }
  return QStringLiteral("none");
}

QString FilmFitFaultText(FilmFitFault fault) {
  switch (fault) {
    case FilmFitFault::kLayers:
      return Text::tr("層は1～4層で、屈折率は正の数でなければなりません。");
    case FilmFitFault::kThicknessRange:
      return Text::tr("膜厚の範囲は0～60000nmで、下限は上限以下でなければなりません。");
    case FilmFitFault::kWavelengths:
      return Text::tr("波長範囲は440～840nmで、20点以上必要です。");
    case FilmFitFault::kOption:
      return Text::tr("バンド幅、不確かさ、信頼水準のいずれかが範囲外です。");
    case FilmFitFault::kSpectrum:
      return Text::tr("反射率データが無効です。");
  }
  return {};
}

}  // namespace vexa

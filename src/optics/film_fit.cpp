// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_fit.h"

#include <gsl/gsl_cdf.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <thread>

#include "base/translation.h"
#include "optics/film_range.h"
#include "optics/film_score.h"
#include "optics/film_seeds.h"
#include "optics/film_solver.h"
#include "optics/film_warnings.h"

namespace vexa {
namespace {

constexpr std::size_t kMostSolved = 4;
constexpr std::size_t kMostAlternatives = 3;
constexpr double kHopelessRatio = 3.0;  // of a seed's sum of squares to the best one's
constexpr double kNearlyAsGood = 1.05;  // of the root mean squares
constexpr double kApartBy = 16.0;       // in chi squared, of two minima
constexpr double kBetterBy = 16.0;      // in chi squared, for one more parameter
constexpr double kPoorNoises = 2.5;
constexpr double kPoorPart = 0.03;        // of what the film explains
constexpr double kNoFilmRatio = 1.08;     // of the sums of squares without and with the film
constexpr double kNoFilmPart = 0.4;       // of the sum of squares that a poor fit may leave
constexpr double kHopeless = 1.5;         // of the same ratio, where a film has 2.5
constexpr double kHopelessNoisy = 1.03;   // where it has 1.08
constexpr double kRoughStep = 1e-5;       // relative, of what is refined once more
constexpr double kUneven = 0.4;           // square of the phases' scatter in radians
constexpr double kSmallestSpread = 1e-3;  // to start from: at 0 there is no slope

class Fitter {
 public:
  Fitter(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
         std::span<const ThicknessRange> ranges, const FilmFitOptions& options,
         const ReflectanceSpectrum* noise, const std::stop_token& stop)
      : spectrum_(spectrum),
        noise_(noise),
        stack_(stack),
        ranges_(ranges),
        options_(options),
        stop_(stop),
        solver_(spectrum, stack, ranges, options, stop),
        measured_(solver_.Measured()),
        incoherent_(IncoherentReflectance(stack, options)),
        fringes_(ClearFringes(spectrum, stack, options)) {}

  FilmFit Run() {
    FilmFit fit = Search();
    if (fit.outcome == FitOutcome::kNone || fit.outcome == FitOutcome::kPoor) {
      if (fringes_ && IsOutside(*fringes_, stack_, ranges_, options_)) {
        fit.warnings << Text::tr("約 %1 nm の膜の干渉縞がありますが、入力した膜厚の範囲の外です。")
                            .arg(std::round(*fringes_));
      }
      if (fit.outcome == FitOutcome::kNone && IsPoor(fit)) {
        fit.warnings << Text::tr(
            "残差がノイズよりはるかに大きく、膜構成または膜厚の範囲が試料と違う可能性があります。");
      }
    }
    return fit;
  }

 private:
  FilmFit Search() {
    const std::vector<FilmSeed> seeds =
        FindFilmSeeds(spectrum_, stack_, ranges_, options_, incoherent_, stop_);
    if (seeds.empty() || IsHopeless(seeds.front())) {
      return NoFilm();
    }
    std::vector<FilmSolution> found = SolveAll(seeds);
    if (found.empty()) {
      return NoFilm();
    }
    TakeInSpread(found);
    return Judged(found);
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

  // Where the best seed of a single layer, and the even film next to it, explain next to nothing,
  // there is no film: uneven ones, which take most of the time, need not be tried.
  bool IsHopeless(const FilmSeed& best) {
    const auto free = std::ranges::count_if(ranges_, [](auto& range) { return !range.IsFixed(); });
    if (free != 1 || options_.indexFree) {
      return false;
    }
    const auto points = static_cast<double>(measured_.size());
    const double without = points * std::pow(RmsWithoutFilm(), 2);
    const double noise = points * std::pow(kPoorNoises * PointNoise(measured_), 2);
    const auto tellsNothing = [&](double sumOfSquares) {
      return without < (sumOfSquares < noise ? kHopelessNoisy : kHopeless) * sumOfSquares;
    };
    if (!tellsNothing(best.sumOfSquares)) {
      return false;
    }
    const auto even = solver_.Solve(StartOf(best, 0.0), solver_.FreeParameters(false),
                                    {.iterations = 40, .step = kRoughStep});
    return !even || tellsNothing(points * even->rms * even->rms);
  }

  FilmPoint StartOf(const FilmSeed& seed, double spread) {
    FilmPoint start;
    start.state.thicknessesNm = seed.thicknessesNm;
    start.state.spread = spread;
    const LinearMatch match = solver_.Match(start.state);
    start.scale = match.scale;
    start.offset = match.offset;
    return start;
  }

  // The minima next to the seeds, best first.
  std::vector<FilmSolution> SolveAll(const std::vector<FilmSeed>& seeds) {
    std::vector<FilmSolution> found;
    const bool uneven = SpreadOf(seeds.front()) > 0.0;
    for (const FilmSeed& seed : seeds) {
      if (found.size() >= kMostSolved ||
          seed.sumOfSquares > kHopelessRatio * seeds.front().sumOfSquares + 1e-9) {
        break;
      }
      const double spread = uneven ? std::max(SpreadOf(seed), kSmallestSpread) : 0.0;
      if (auto solution = solver_.Solve(StartOf(seed, spread), solver_.FreeParameters(uneven),
                                        {.iterations = 40, .step = kRoughStep})) {
        AddDistinct(std::move(*solution), found);
      }
    }
    std::ranges::sort(found, {}, &FilmSolution::rms);
    return found;
  }

  static void AddDistinct(FilmSolution solution, std::vector<FilmSolution>& found) {
    constexpr double kSameNm = 2.0;
    for (FilmSolution& other : found) {
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
  double RoughSpread(const FilmSolution& from) {
    const double phase = WholePhase(from.point.state);
    const auto points = static_cast<double>(measured_.size());
    const double enough = points * from.rms * from.rms * (1.0 - kBetterBy / 2.0 / points);
    double best = enough;
    double spread = 0.0;
    double last = points * from.rms * from.rms;
    for (const double radians : {0.3, 0.7, 1.5, 2.5}) {
      FilmState state = from.point.state;
      state.spread = std::min(radians / phase, 0.1);
      const double left = solver_.Match(state).sumOfSquares;
      if (left > last) {
        break;  // more takes too much from the fringes
      }
      last = left;
      if (left < best) {
        best = left;
        spread = state.spread;
      }
    }
    return spread;
  }

  // A spread is taken in when the best fit is clearly better with it; then all get one.
  void TakeInSpread(std::vector<FilmSolution>& found) {
    const double rough = found.front().point.state.spread > 0.0 ? 0.0 : RoughSpread(found.front());
    if (rough == 0.0) {
      return;
    }
    const auto spreadOut = [&](const FilmSolution& from) {
      FilmPoint start = from.point;
      start.state.spread = rough;
      return solver_.Solve(start, solver_.FreeParameters(true),
                           {.iterations = 60, .step = kRoughStep});
    };
    const auto better = spreadOut(found.front());
    const auto points = static_cast<double>(measured_.size());
    if (!better || points * (std::pow(found.front().rms / std::max(better->rms, 1e-12), 2) - 1.0) <
                       kBetterBy) {
      return;
    }
    for (FilmSolution& solution : found) {
      if (auto with = spreadOut(solution); with && with->rms < solution.rms) {
        solution = std::move(*with);
      }
    }
    std::ranges::sort(found, {}, &FilmSolution::rms);
  }

  FilmFit Judged(std::vector<FilmSolution>& found) {
    FilmSolution& best = found.front();
    const double quickRms = best.rms;
    if (noise_ != nullptr) {
      solver_.WeighBy(*noise_);
    } else {
      solver_.WeighByResiduals(solver_.Residuals(best.point));
    }
    if (auto weighted = solver_.Solve(best.point, best.parameters, {.step = 1e-8})) {
      best = std::move(*weighted);
    }
    FilmFit fit;
    fit.fromNm = options_.fromNm;
    const std::vector<double> residuals = solver_.Residuals(best.point);
    for (std::size_t i = 0; i < residuals.size(); ++i) {
      fit.fitted.push_back(measured_[i] - residuals[i]);
    }
    fit.rms = Rms(residuals);
    fit.noise = std::min(PointNoise(measured_), PointNoise(residuals));
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
    KeepWithinRanges(fit);
    fit.warnings = FitWarnings(best, options_);
    return fit;
  }

  // What is left when no thickness is told: by the bare substrate, or by films so uneven that they
  // make no fringes.
  double RmsWithoutFilm() {
    const FilmState bare{.thicknessesNm = std::vector<double>(ranges_.size(), 0.0)};
    return std::min(RmsOfSmooth(solver_.Reflect(bare), measured_, options_),
                    RmsOfSmooth(incoherent_, measured_, options_));
  }

  bool IsPoor(const FilmFit& fit) {
    return fit.rms > kPoorNoises * fit.noise && fit.rms > kPoorPart * RmsWithoutFilm();
  }

  FitOutcome OutcomeOf(const FilmFit& fit, double quickRms) {
    const bool poor = IsPoor(fit);
    const double gain = std::pow(RmsWithoutFilm() / std::max(fit.rms, 1e-12), 2);
    const bool explains = gain >= 1.0 / kNoFilmPart;
    const bool untold = std::ranges::any_of(fit.layers, [](const FittedLayer& layer) {
      return !(std::hypot(layer.statisticalNm, layer.wavelengthNm) <=
               layer.thicknessNm / 2.0);  // nor what is no number
    });
    if (poor) {
      return explains || fringes_ ? FitOutcome::kPoor : FitOutcome::kNone;
    }
    if (gain < kNoFilmRatio || (untold && !explains)) {
      return FitOutcome::kNone;
    }
    if (untold) {
      return FitOutcome::kAmbiguous;  // other parameters make up for any thickness
    }
    // Few points tell minima apart less well.
    const auto freedom = std::max(static_cast<double>(measured_.size()) - 4.0, 1.0);
    const double nearlyAsGood = std::max(kNearlyAsGood, std::sqrt(1.0 + kApartBy / freedom));
    const bool another =
        std::ranges::any_of(fit.alternatives, [&](const FitAlternative& alternative) {
          return alternative.rms < nearlyAsGood * quickRms;
        });
    return another ? FitOutcome::kAmbiguous : FitOutcome::kOk;
  }

  void FillLayers(const FilmSolution& best, FilmFit& fit) {
    for (const double nm : best.point.state.thicknessesNm) {
      fit.layers.push_back({.thicknessNm = nm});
    }
    const std::size_t count = best.parameters.size();
    const auto freedom = static_cast<double>(measured_.size() - count);
    const double variance = best.result.sumOfSquares / freedom;
    const double quantile = gsl_cdf_tdist_Pinv(0.5 + options_.confidence / 2.0, freedom);
    const std::vector<double> byWavelength = solver_.WavelengthShifts(best);
    for (std::size_t i = 0; i < count; ++i) {
      if (best.parameters[i].kind != FilmParameter::kThickness) {
        continue;
      }
      FittedLayer& layer = fit.layers[best.parameters[i].layer];
      layer.statisticalNm = quantile * std::sqrt(variance * best.result.Covariance(i, i));
      const bool known = best.parameters[i].layer > 0 || !options_.indexFree;
      layer.wavelengthNm = std::abs(byWavelength[i]);
      layer.indexNm = known ? layer.thicknessNm * options_.indexUncertainty : 0.0;
      layer.uncertaintyNm = std::hypot(layer.statisticalNm, layer.wavelengthNm, layer.indexNm);
    }
  }

  // A thickness is known to lie within its range, whatever the covariance makes of it.
  void KeepWithinRanges(FilmFit& fit) const {
    for (std::size_t j = 0; j < ranges_.size(); ++j) {
      const double widthNm = ranges_[j].toNm - ranges_[j].fromNm;
      for (double FittedLayer::*part : {&FittedLayer::uncertaintyNm, &FittedLayer::statisticalNm,
                                        &FittedLayer::wavelengthNm, &FittedLayer::indexNm}) {
        double& nm = fit.layers[j].*part;
        nm = nm <= widthNm ? nm : widthNm;  // nor what is no number
      }
    }
  }

  FilmFit NoFilm(FilmFit fit = {}) {
    constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
    if (fit.fitted.empty()) {
      fit.noise = PointNoise(measured_);
      fit.rms = RmsWithoutFilm();
    }
    fit.outcome = FitOutcome::kNone;
    fit.spread = 0.0;
    fit.index = 1.0;
    fit.layers.assign(ranges_.size(),
                      {kNotANumber, kNotANumber, kNotANumber, kNotANumber, kNotANumber});
    fit.alternatives.clear();
    return fit;
  }

  const ReflectanceSpectrum& spectrum_;
  const ReflectanceSpectrum* noise_;
  const FilmStack& stack_;
  std::span<const ThicknessRange> ranges_;
  const FilmFitOptions& options_;
  const std::stop_token& stop_;
  FilmSolver solver_;
  std::span<const double> measured_;
  std::vector<double> incoherent_;
  std::optional<double> fringes_;  // ClearFringes
};

}  // namespace

std::variant<FilmFit, FilmFitFault> FitFilm(const ReflectanceSpectrum& spectrum,
                                            const FilmStack& stack,
                                            std::span<const ThicknessRange> ranges,
                                            const FilmFitOptions& options,
                                            const ReflectanceSpectrum* noise,
                                            const std::stop_token& stop) {
  if (const auto fault = CheckFilmFit(spectrum, stack, ranges, options)) {
    return *fault;
  }
  try {
    return Fitter(spectrum, stack, ranges, options, noise, stop).Run();
  } catch (const FitStopped&) {
    return FilmFitFault::kStopped;
  }
}

std::variant<FilmFit, FilmFitFault> FitFilm(const ReflectanceSpectrum& spectrum,
                                            const FilmFitRequest& request,
                                            const ReflectanceSpectrum* noise,
                                            const std::stop_token& stop) {
  auto fit = FitFilm(spectrum, request.stack, LayerRanges(request.setting), request.setting.options,
                     noise, stop);
  if (auto* made = std::get_if<FilmFit>(&fit)) {
    made->setting = request.setting;
  }
  return fit;
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

}  // namespace vexa

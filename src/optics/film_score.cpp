// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_score.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vexa {

LinearMatch MatchLinear(std::span<const double> model, std::span<const double> measured,
                        bool scaleFree, bool offsetFree) {
  double m = 0.0;
  double y = 0.0;
  double mm = 0.0;
  double my = 0.0;
  double yy = 0.0;
  for (std::size_t i = 0; i < model.size(); ++i) {
    m += model[i];
    y += measured[i];
    mm += model[i] * model[i];
    my += model[i] * measured[i];
    yy += measured[i] * measured[i];
  }
  const auto count = static_cast<double>(model.size());
  if (offsetFree) {
    mm -= m * m / count;
    my -= m * y / count;
    yy -= y * y / count;
  }
  LinearMatch match;
  if (scaleFree && mm > 0.0) {
    match.scale = std::clamp(my / mm, kSmallestFilmScale, kGreatestFilmScale);
  }
  match.offset = offsetFree ? (y - match.scale * m) / count : 0.0;
  match.sumOfSquares = std::max(0.0, yy + match.scale * (match.scale * mm - 2.0 * my));
  return match;
}

double Rms(std::span<const double> values) {
  return values.empty()
             ? 0.0
             : std::sqrt(std::inner_product(values.begin(), values.end(), values.begin(), 0.0) /
                         static_cast<double>(values.size()));
}

double PointNoise(std::span<const double> values) {
  std::vector<double> differences;
  for (std::size_t i = 3; i < values.size(); ++i) {
    differences.push_back((values[i] - 3.0 * values[i - 1] + 3.0 * values[i - 2] - values[i - 3]) /
                          std::sqrt(20.0));
  }
  return Rms(differences);
}

double RmsOfSmooth(std::span<const double> model, std::span<const double> measured,
                   const FilmFitOptions& options) {
  const auto count = static_cast<double>(measured.size());
  if (!options.scaleFree) {
    const LinearMatch match = MatchLinear(model, measured, false, options.offsetFree);
    return std::sqrt(match.sumOfSquares / count);
  }
  std::vector<double> ratio;
  for (std::size_t i = 0; i < model.size(); ++i) {
    ratio.push_back(measured[i] / std::max(model[i], 1e-9));
  }
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
    left.push_back(model[i] * (ratio[i] - mean - place * slope / places));
  }
  return Rms(left);
}

std::vector<double> IncoherentReflectance(const FilmStack& stack, const FilmFitOptions& options) {
  constexpr int kStepNm = 8;
  const FilmModel model(stack, options.fromNm, options.toNm, kStepNm, 0.0);
  std::vector<double> coarse(model.Points());
  model.Reflect({.thicknessesNm = std::vector<double>(stack.layers.size(), 5000.0), .spread = 0.2},
                coarse);
  std::vector<double> percent;
  for (int nm = options.fromNm; nm <= options.toNm; ++nm) {
    const std::size_t low =
        std::min(static_cast<std::size_t>((nm - options.fromNm) / kStepNm), coarse.size() - 2);
    const double part = static_cast<double>(nm - model.Nm(low)) / kStepNm;
    percent.push_back(std::lerp(coarse[low], coarse[low + 1], part));
  }
  return percent;
}

FilmScore::FilmScore(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                     const FilmFitOptions& options, std::span<const double> incoherent, int stepNm,
                     const std::stop_token& stop)
    : options_(options),
      stop_(stop),
      model_(stack, options.fromNm, options.toNm, stepNm, 0.0),
      values_(model_.Points()) {
  for (std::size_t i = 0; i < model_.Points(); ++i) {
    measured_.push_back(spectrum[model_.Nm(i)]);
    incoherent_.push_back(incoherent[static_cast<std::size_t>(model_.Nm(i) - options.fromNm)]);
  }
}

double FilmScore::operator()(const std::vector<double>& thicknessesNm) {
  Reflect(thicknessesNm);
  return MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree).sumOfSquares;
}

double FilmScore::Damped(const std::vector<double>& thicknessesNm, double& visibility) {
  Reflect(thicknessesNm);
  const double scale =
      MatchLinear(incoherent_, measured_, options_.scaleFree, options_.offsetFree).scale;
  double cross = 0.0;
  double square = 0.0;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    const double coherent = scale * (values_[i] - incoherent_[i]);
    cross += coherent * (measured_[i] - scale * incoherent_[i]);
    square += coherent * coherent;
  }
  visibility = square > 0.0 ? std::clamp(cross / square, 0.0, 1.0) : 1.0;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    values_[i] = std::lerp(incoherent_[i], values_[i], visibility);
  }
  return MatchLinear(values_, measured_, options_.scaleFree, options_.offsetFree).sumOfSquares;
}

void FilmScore::Reflect(const std::vector<double>& thicknessesNm) {
  if (stop_.stop_requested()) {
    throw FitStopped();
  }
  state_.thicknessesNm = thicknessesNm;
  model_.Reflect(state_, values_);
}

}  // namespace vexa

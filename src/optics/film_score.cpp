// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_score.h"

#include <algorithm>
#include <cmath>

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

FilmScore::FilmScore(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                     const FilmFitOptions& options, int stepNm)
    : options_(options),
      model_(stack, options.fromNm, options.toNm, stepNm, 0.0),
      values_(model_.Points()),
      incoherent_(model_.Points()) {
  for (std::size_t i = 0; i < model_.Points(); ++i) {
    measured_.push_back(spectrum[model_.Nm(i)]);
  }
  // So thick and so uneven that nothing is left of the fringes.
  model_.Reflect({.thicknessesNm = std::vector<double>(stack.layers.size(), 5000.0), .spread = 0.2},
                 incoherent_);
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
  state_.thicknessesNm = thicknessesNm;
  model_.Reflect(state_, values_);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_warnings.h"

#include <cmath>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr double kCorrelated = 0.95;

QString ParameterText(const FilmParameter& parameter) {
  switch (parameter.kind) {
    case FilmParameter::kThickness:
      return Text::tr("膜厚%1").arg(parameter.layer + 1);
    case FilmParameter::kScale:
      return Text::tr("倍率");
    case FilmParameter::kOffset:
      return Text::tr("オフセット");
    case FilmParameter::kSpread:
      return Text::tr("膜厚むら");
    case FilmParameter::kIndex:
      return Text::tr("屈折率");
  }
  return {};
}

}  // namespace

QStringList FitWarnings(const FilmSolution& solution, const FilmFitOptions& options) {
  QStringList warnings;
  const LeastSquaresResult& result = solution.result;
  for (std::size_t i = 0; i < solution.parameters.size(); ++i) {
    for (std::size_t k = i + 1; k < solution.parameters.size(); ++k) {
      const double correlation =
          result.Covariance(i, k) / std::sqrt(result.Covariance(i, i) * result.Covariance(k, k));
      if (std::abs(correlation) > kCorrelated) {
        warnings << Text::tr("%1と%2の相関が高く、区別できません。")
                        .arg(ParameterText(solution.parameters[i]),
                             ParameterText(solution.parameters[k]));
      }
    }
  }
  const double scale = solution.point.scale;
  if (options.scaleFree && (scale == kSmallestFilmScale || scale == kGreatestFilmScale)) {
    warnings << Text::tr("倍率が限界に達しました。");
  }
  return warnings;
}

}  // namespace vexa

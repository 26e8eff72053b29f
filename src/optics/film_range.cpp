// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_range.h"

#include <algorithm>
#include <limits>

#include "optics/film_seeds.h"
#include "optics/fourier_thickness.h"

namespace vexa {

std::optional<double> ClearFringes(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                                   const FilmFitOptions& options) {
  constexpr double kClearRatio = 20.0;
  const Material& first = stack.layers.front();
  const auto transform = TransformFringes(spectrum, first.n, options.fromNm, options.toNm);
  const bool clear = transform && !transform->peaks.empty() &&
                     transform->peaks.front().ratio >= kClearRatio &&
                     transform->peaks.front().thicknessNm > ThinNm(first, options);
  return clear ? std::optional(transform->peaks.front().thicknessNm) : std::nullopt;
}

bool IsOutside(double fringesNm, const FilmStack& stack, std::span<const ThicknessRange> ranges,
               const FilmFitOptions& options) {
  // The transform places the fringes of one film well, those of several to about an order.
  constexpr double kSlackOfOne = 0.01;
  constexpr double kSlack = 0.5;
  const Material& first = stack.layers.front();
  const int middleNm = (options.fromNm + options.toNm) / 2;
  double least = std::numeric_limits<double>::infinity();
  double most = 0.0;
  for (std::size_t j = 0; j < ranges.size(); ++j) {
    const double path = stack.layers[j].n[middleNm] / first.n[middleNm];
    least = std::min(least, ranges[j].fromNm * path);
    most += ranges[j].toNm * path;
  }
  const double resolution = 1.0 / (first.n[middleNm] * (1.0 / options.fromNm - 1.0 / options.toNm));
  const double slack = ranges.size() == 1 ? kSlackOfOne * fringesNm : kSlack * resolution;
  return fringesNm > most + slack || fringesNm < least - slack;
}

}  // namespace vexa

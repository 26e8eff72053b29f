// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_range.h"

#include <algorithm>
#include <limits>

#include "optics/fourier_thickness.h"

namespace vexa {

std::optional<double> FringesOutside(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
                                     std::span<const ThicknessRange> ranges,
                                     const FilmFitOptions& options) {
  constexpr double kClearRatio = 20.0;
  // The transform places the fringes of a film to about an order.
  constexpr double kSlack = 0.5;
  const Material& first = stack.layers.front();
  const auto transform = TransformFringes(spectrum, first.n, options.fromNm, options.toNm);
  if (!transform || transform->peaks.empty() || transform->peaks.front().ratio < kClearRatio) {
    return std::nullopt;
  }
  const int middleNm = (options.fromNm + options.toNm) / 2;
  double least = std::numeric_limits<double>::infinity();
  double most = 0.0;
  for (std::size_t j = 0; j < ranges.size(); ++j) {
    const double path = stack.layers[j].n[middleNm] / first.n[middleNm];
    least = std::min(least, ranges[j].fromNm * path);
    most += ranges[j].toNm * path;
  }
  const double resolution = 1.0 / (first.n[middleNm] * (1.0 / options.fromNm - 1.0 / options.toNm));
  const double nm = transform->peaks.front().thicknessNm;
  const bool outside = nm > most + kSlack * resolution || nm < least - kSlack * resolution;
  return outside ? std::optional(nm) : std::nullopt;
}

}  // namespace vexa

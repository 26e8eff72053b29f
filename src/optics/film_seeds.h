// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "optics/film_fit.h"

namespace vexa {

/// Thicknesses from which a fit may start.
struct FilmSeed {
  std::vector<double> thicknessesNm;
  double sumOfSquares = 0.0;  ///< with the best scale and offset, over all points
  double visibility = 1.0;    ///< of the fringes, over that of an even film
};

/// The scale and the offset with which a model fits measured values best.
struct LinearMatch {
  double scale = 1.0;
  double offset = 0.0;
  double sumOfSquares = 0.0;
};

/// As far as they are free; the scale stays within 0.5 to 1.6.
[[nodiscard]] LinearMatch MatchLinear(std::span<const double> model,
                                      std::span<const double> measured, bool scaleFree,
                                      bool offsetFree);

/// Distinct starting points within the ranges, best first, from the Fourier peaks of the spectrum
/// and from scans of thin or narrowly known layers. Takes what FitFilm has checked.
[[nodiscard]] std::vector<FilmSeed> FindFilmSeeds(const ReflectanceSpectrum& spectrum,
                                                  const FilmStack& stack,
                                                  std::span<const ThicknessRange> ranges,
                                                  const FilmFitOptions& options);

}  // namespace vexa

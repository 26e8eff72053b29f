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

/// Below it the transform does not tell where a layer's fringes are: 1.2 um over the whole
/// spectrum, more over fewer wavelengths.
[[nodiscard]] double ThinNm(const Material& layer, const FilmFitOptions& options);

/// Distinct starting points within the ranges, best first, from the Fourier peaks of the spectrum
/// and from scans of thin or narrowly known layers. Takes what FitFilm has checked, and
/// IncoherentReflectance; throws FitStopped once a stop is requested.
[[nodiscard]] std::vector<FilmSeed> FindFilmSeeds(const ReflectanceSpectrum& spectrum,
                                                  const FilmStack& stack,
                                                  std::span<const ThicknessRange> ranges,
                                                  const FilmFitOptions& options,
                                                  std::span<const double> incoherent,
                                                  const std::stop_token& stop);

}  // namespace vexa

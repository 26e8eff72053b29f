// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "optics/film_fit.h"

namespace vexa {

/// The thickness in nm, as if it were all of the first layer's material, of clear fringes in the
/// spectrum; nothing when there are none, or the film is too thin for the transform to tell. Takes
/// what FitFilm has checked, as the next.
[[nodiscard]] std::optional<double> ClearFringes(const ReflectanceSpectrum& spectrum,
                                                 const FilmStack& stack,
                                                 const FilmFitOptions& options);

/// No stack within the ranges makes such fringes.
[[nodiscard]] bool IsOutside(double fringesNm, const FilmStack& stack,
                             std::span<const ThicknessRange> ranges, const FilmFitOptions& options);

}  // namespace vexa

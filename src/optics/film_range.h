// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "optics/film_fit.h"

namespace vexa {

/// The thickness in nm, as if it were all of the first layer's material, of clear fringes in the
/// spectrum that no stack within the ranges makes; nothing when there are none. Takes what FitFilm
/// has checked.
[[nodiscard]] std::optional<double> FringesOutside(const ReflectanceSpectrum& spectrum,
                                                   const FilmStack& stack,
                                                   std::span<const ThicknessRange> ranges,
                                                   const FilmFitOptions& options);

}  // namespace vexa

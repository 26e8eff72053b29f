// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "optics/film_solver.h"

namespace vexa {

/// What a user should know of a solution: parameters whose correlation is above 0.95, and a free
/// scale at its limit; a line each.
[[nodiscard]] QStringList FitWarnings(const FilmSolution& solution, const FilmFitOptions& options);

}  // namespace vexa

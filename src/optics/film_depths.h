// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "optics/film_score.h"
#include "optics/film_seeds.h"

namespace vexa {

/// A layer of a stack whose thicknesses are looked for by the depths at which its layers end.
struct DepthLayer {
  ThicknessRange range;
  double orderNm;   ///< how much its thickness changes from one order to the next
  double perFirst;  ///< its thickness with the optical path of 1 nm of the first layer
};

/// Start values for a stack of several free layers. The surface reflects most, so that the
/// strongest fringes are those between it and the end of each layer, and nearly add up: every
/// ordered choice out of `depthsNm`, where a Fourier transform has its peaks, as thicknesses of the
/// first layer, is put to its best place and judged by `score`. Those out of their ranges are left.
[[nodiscard]] std::vector<FilmSeed> SeedsAtDepths(std::vector<double> depthsNm,
                                                  std::span<const DepthLayer> layers,
                                                  FilmScore& score);

/// Moves the end of each free layer within an order to its best place, that of the next one staying
/// where it is.
void MoveDepths(FilmSeed& seed, std::span<const DepthLayer> layers, FilmScore& score);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulator/dispersion.h"

namespace vexa::simulator {

/// A homogeneous film.
struct FilmLayer {
  IndexCurve index;
  double thicknessNm = 0.0;
};

/// Films on one face of a substrate, in air (index 1), the film next to the air first. The back
/// face of the substrate does not reflect.
struct FilmStack {
  IndexCurve substrate;
  std::vector<FilmLayer> layers;
};

/// Shares of the incident power, each 0..1; what is missing from 1 is absorbed in the films.
struct PowerShares {
  double reflected = 0.0;
  double transmitted = 0.0;
};

/// Reflection and transmission of the stack at normal incidence, by the characteristic matrix of
/// its films (H. A. Macleod, Thin-Film Optical Filters, ch. 2: each film
/// [cos d, i sin d / n; i n sin d, cos d] with d = 2 pi n t / wavelength). Needs wavelengthNm > 0.
/// Example: no films on a substrate of index 1.5 reflect 0.04 and let 0.96 through.
[[nodiscard]] PowerShares SplitPower(const FilmStack& stack, double wavelengthNm);

}  // namespace vexa::simulator

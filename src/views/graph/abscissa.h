// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa {

/// What a graph of a spectrum shows from left to right: the wavelength in nanometres, or its
/// reciprocal in 1/µm, over which the fringes of a film are evenly spaced.
enum class Abscissa { kWavelength, kReciprocal };

/// The place of a wavelength (nm, above 0) on the axis.
[[nodiscard]] constexpr double AbscissaOf(Abscissa abscissa, double nm) {
  return abscissa == Abscissa::kWavelength ? nm : 1000.0 / nm;
}

/// The wavelength in nanometres at a place of the axis; a reciprocal place has to be above 0.
[[nodiscard]] constexpr double WavelengthAt(Abscissa abscissa, double place) {
  return AbscissaOf(abscissa, place);
}

}  // namespace vexa

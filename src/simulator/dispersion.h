// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <complex>
#include <functional>

namespace vexa::simulator {

/// Refractive index n - ik (k >= 0 absorbs) at a vacuum wavelength in nanometres.
using IndexCurve = std::function<std::complex<double>(double wavelengthNm)>;

// Bulk indices, valid at least over 400 to 1000 nm. Each is a Sellmeier formula
// n^2 = 1 + sum of B L^2 / (L^2 - C), L the wavelength in micrometres.

/// Crown glass: N-BK7, SCHOTT optical glass data sheet. At 587.56 nm 1.51680.
[[nodiscard]] double CrownGlassIndex(double wavelengthNm);

/// Magnesium fluoride, ordinary ray: M. J. Dodge, Appl. Opt. 23, 1980 (1984). At 589.3 nm 1.3777.
[[nodiscard]] double MagnesiumFluorideIndex(double wavelengthNm);

/// Cubic zirconia: D. L. Wood and K. Nassau, Appl. Opt. 21, 2978 (1982). At 589.3 nm 2.1585.
[[nodiscard]] double ZirconiaIndex(double wavelengthNm);

// Plastics, by a Cauchy formula n = A + B / L^2. The constants are this program's own, set for the
// index and the Abbe number that such materials are sold with.

/// Spectacle plastic like CR-39: at 587.56 nm 1.4985, Abbe number 58.
[[nodiscard]] double LensPlasticIndex(double wavelengthNm);

/// Primer between a plastic and its hard coat: at 587.56 nm 1.540, Abbe number 45.
[[nodiscard]] double PrimerIndex(double wavelengthNm);

/// Hard coat for plastic lenses: at 587.56 nm 1.602, Abbe number 42.
[[nodiscard]] double HardCoatIndex(double wavelengthNm);

}  // namespace vexa::simulator

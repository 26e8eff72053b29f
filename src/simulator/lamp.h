// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa::simulator {

/// Colour temperature of the halogen lamp's filament.
inline constexpr double kLampKelvin = 3200.0;

/// Power of the halogen lamp per nanometre, by Planck's law as a black body of kLampKelvin, in
/// units of its value at 650 nm. Needs wavelengthNm > 0.
[[nodiscard]] double LampPower(double wavelengthNm);

/// Power of the room light that strays in through the open eyepiece, 1 at its peak (555 nm): a
/// Gaussian of 80 nm standard deviation, roughly a white lamp without infrared.
[[nodiscard]] double RoomLight(double wavelengthNm);

}  // namespace vexa::simulator

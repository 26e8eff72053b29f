// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa::simulator {

/// Colour temperature of the halogen lamp's filament.
inline constexpr double kLampKelvin = 3200.0;

/// Power of the halogen lamp per nanometre, by Planck's law as a black body of kLampKelvin, in
/// units of its value at 650 nm when new. Needs wavelengthNm > 0. The metal that settles on the
/// bulb with the hours takes the share 1 - exp(-(hours / 10000 h) (550 nm / wavelength)^2): after
/// 1000 h 14.5 % at 440 nm, 9.5 % at 550 nm, 4.2 % at 840 nm (a model of this program, no lamp's
/// data).
[[nodiscard]] double LampPower(double wavelengthNm, double ageHours = 0.0);

/// Power of the room light that strays in through the open eyepiece, 1 at its peak (555 nm): a
/// Gaussian of 80 nm standard deviation, roughly a white lamp without infrared.
[[nodiscard]] double RoomLight(double wavelengthNm);

}  // namespace vexa::simulator

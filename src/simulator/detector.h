// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <random>

#include "simulator/samples.h"
#include "simulator/wear.h"

namespace vexa::simulator {

inline constexpr int kPixels = 512;
inline constexpr int kFullScale = 4095;

/// What one exposure of the line sensor is made with.
struct Exposure {
  double integrationMs = 30.0;
  bool lightShutterClosed = true;    // blocks the lamp
  bool eyepieceShutterOpen = false;  // lets room light in
};

/// Counts of the 512 pixels in the order in which the sensor is read, before noise and digitising.
using PixelCounts = std::array<double, kPixels>;

/// One line as the controller sends it: 0..4095 each, in the order of reading.
using SensorLine = std::array<std::uint16_t, kPixels>;

/// Wavelength in nanometres that falls on pixel 0..511 in the order of reading, which runs from
/// long to short: 845.1 nm on pixel 0, 435.0 nm on pixel 511. Between the lines 546.074, 696.543,
/// 738.393, 763.511 and 811.531 nm, which fall on the pixels 373, 186, 133, 102 and 42, it is
/// linear; the outer pieces go on beyond them.
[[nodiscard]] double PixelWavelengthNm(int pixel);

/// Signal per incident power, in relative units: quantum efficiency of a silicon photodiode (a
/// smooth curve of about 0.7, falling below 400 and above 950 nm) times the photons per power,
/// times the efficiency sinc^2(pi (450 / wavelength - 1)) of a grating blazed at 450 nm.
[[nodiscard]] double SpectralResponse(double wavelengthNm);

/// Mean counts of one line: a dark level of 60 counts and 6 per second, the lamp's light off the
/// sample (the 4 % reference peaks at 575 counts in 3000 ms with a new lamp), of which a leaking
/// shutter lets its share through when closed, and, with the eyepiece open, room light (30 counts
/// at its peak in 3000 ms). All but the 60 grow in proportion to the time.
[[nodiscard]] PixelCounts MeanCounts(Sample sample, const Exposure& exposure,
                                     const Wear& wear = {});

/// Reflectance in percent at a wavelength in nanometres.
using ReflectanceCurve = std::function<double(double wavelengthNm)>;

/// Likewise for a face of any reflectance, such as that of a FilmStack.
[[nodiscard]] PixelCounts MeanCounts(const ReflectanceCurve& percent, const Exposure& exposure,
                                     const Wear& wear = {});

/// Digitises a line: rounded, clipped to 0..4095. With a generator, shot noise (200 electrons a
/// count, so a variance of counts / 200) and read noise (1 count) come first; the same generator
/// state gives the same line. Null: no noise.
[[nodiscard]] SensorLine ReadOut(const PixelCounts& mean, std::mt19937_64* noise);

}  // namespace vexa::simulator

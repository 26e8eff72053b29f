// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/spectrum.h"
#include "base/status.h"
#include "instrument/detector_line.h"

namespace vexa {

/// Pixel positions of the known spectral lines, in ascending wavelength. From a start wavelength
/// of 390 nm on, the first five are used, else all six.
using LinePositions = std::array<std::int16_t, 6>;

inline constexpr LinePositions kDefaultLinePositions{138, 325, 378, 409, 469, 0};
inline constexpr int kDetectorStartNm = 440;
inline constexpr int kMappedPoints = 409;
/// The largest averaged count that is no saturation; the 12-bit converter ends at 4095.
inline constexpr std::int32_t kLargestUnsaturated = 4094;

/// Averaged counts by pixel in ascending wavelength (the reverse of the order in a line).
using PixelFrame = std::array<std::int32_t, kPixelsPerLine>;

/// The result of LinesToWaves. `status`: 0; 1 when an averaged pixel is saturated (the values are
/// there all the same); -1 when nothing could be computed (`values` is empty then).
struct MappedSpectrum {
  Status status = -1;
  int startNm = 0;             ///< wavelength of the first value; 0 when the mapping is bypassed
  std::vector<double> values;  ///< 409 light amounts 1 nm apart, or the 512 pixels
};

/// The mean of all complete lines, pixel by pixel, truncated to whole counts; nothing when no
/// line is complete.
[[nodiscard]] std::optional<PixelFrame> AverageLines(std::span<const LineBuffer> lines);

/// True when a pixel is above kLargestUnsaturated.
[[nodiscard]] bool IsSaturated(const PixelFrame& pixels);

/// Averages the complete lines and maps pixels to whole nanometres from `startNm` on. The
/// wavelength of a pixel runs linearly between the known lines (Ar and Hg, NIST wavelengths in
/// air). Point startNm + j is the mean of the pixels in ((startNm - 4 + j) - 0.5,
/// (startNm - 4 + j) + 0.4] nm, or 0 when there are none. Positions 0 and 511 for the first and
/// the sixth line bypass the mapping. Two equal neighbouring positions give status -1.
[[nodiscard]] MappedSpectrum LinesToWaves(std::span<const LineBuffer> lines,
                                          const LinePositions& positions, int startNm);

/// Whether the positions can be those of spectral lines on this detector: ascending pixels of it
/// that give at least nine tenths of the mapped points a pixel. The bypass is right as it is.
[[nodiscard]] bool FitTheDetector(const LinePositions& positions, int startNm = kDetectorStartNm);

inline constexpr Status kNotMappable = -8;

/// Likewise into a spectrum: 0, 1 saturated, or kNotMappable, which leaves the spectrum alone, when
/// the positions do not give one.
[[nodiscard]] Status FillSpectrum(std::span<const LineBuffer> lines, const LinePositions& positions,
                                  int startNm, RawSpectrum& spectrum);

}  // namespace vexa

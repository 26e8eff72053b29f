// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/wavelength_mapping.h"

#include <algorithm>
#include <functional>

#include "base/arithmetic.h"

namespace vexa {
namespace {

constexpr int kFiveLineStartNm = 390;
constexpr int kBinOffsetNm = 4;
constexpr int kLastPixel = static_cast<int>(kPixelsPerLine) - 1;

using PixelWavelengths = std::array<double, kPixelsPerLine>;

constexpr std::array kFiveLinesNm{546.074, 696.543, 738.393, 763.511, 811.531};
constexpr std::array kFiveGapsNm{150.469, 41.85, 25.118, 48.02};
constexpr std::array kSixLinesNm{404.656, 435.833, 546.074, 696.543, 738.393, 763.511};
constexpr std::array kSixGapsNm{31.177, 110.241, 150.469, 41.85, 25.118};

// Piece i runs from line i to line i + 1; the first reaches down to pixel 0 and is anchored at its
// upper line, the last reaches up to the last pixel. At a line the later piece stands.
PixelWavelengths WavelengthsOfPixels(std::span<const double> linesNm,
                                     std::span<const double> gapsNm,
                                     const LinePositions& positions) {
  PixelWavelengths wavelengths{};
  for (std::size_t piece = 0; piece < gapsNm.size(); ++piece) {
    const std::size_t anchor = std::max<std::size_t>(piece, 1);
    const double nmPerPixel = Divide(gapsNm[piece], positions[piece + 1] - positions[piece]);
    const int first = piece == 0 ? 0 : std::max<int>(positions[piece], 0);
    const int last =
        piece + 1 == gapsNm.size() ? kLastPixel : std::min<int>(positions[piece + 1], kLastPixel);
    for (int pixel = first; pixel <= last; ++pixel) {
      wavelengths[static_cast<std::size_t>(pixel)] =
          linesNm[anchor] + (pixel - positions[anchor]) * nmPerPixel;
    }
  }
  return wavelengths;
}

std::vector<double> BinByNanometre(const PixelFrame& pixels, const PixelWavelengths& wavelengths,
                                   int startNm) {
  std::array<double, kPixelsPerLine> counts{};
  std::copy(pixels.begin(), pixels.end(), counts.begin());
  std::vector<double> points(kMappedPoints);
  for (int j = 0; j < kMappedPoints; ++j) {
    const double above = (startNm - kBinOffsetNm + j) - 0.5;
    const double upTo = (startNm - kBinOffsetNm + j) + 0.4;
    double sum = 0.0;
    int count = 0;
    for (std::size_t pixel = 0; pixel < kPixelsPerLine; ++pixel) {
      if (wavelengths[pixel] > above && wavelengths[pixel] <= upTo) {
        sum += counts[pixel];
        ++count;
      }
    }
    points[static_cast<std::size_t>(j)] = count > 0 ? sum / count : 0.0;
  }
  return points;
}

bool IsBypass(const LinePositions& positions) {
  return positions[0] == 0 && positions[5] == kLastPixel;
}

}  // namespace

std::optional<PixelFrame> AverageLines(std::span<const LineBuffer> lines) {
  PixelFrame sums{};
  std::int32_t complete = 0;
  for (const LineBuffer& line : lines) {
    if (!line.complete) {
      continue;
    }
    ++complete;
    for (std::size_t i = 0; i < kPixelsPerLine; ++i) {
      sums[kPixelsPerLine - 1 - i] += line.bytes[2 * i] + 256 * (line.bytes[2 * i + 1] & 0x0f);
    }
  }
  if (complete == 0) {
    return std::nullopt;
  }
  for (std::int32_t& sum : sums) {
    sum /= complete;
  }
  return sums;
}

bool IsSaturated(const PixelFrame& pixels) {
  return std::any_of(pixels.begin(), pixels.end(),
                     [](std::int32_t count) { return count > kLargestUnsaturated; });
}

MappedSpectrum LinesToWaves(std::span<const LineBuffer> lines, const LinePositions& positions,
                            int startNm) {
  const std::optional<PixelFrame> pixels = AverageLines(lines);
  if (!pixels) {
    return {};
  }
  const Status status = IsSaturated(*pixels) ? 1 : 0;
  if (IsBypass(positions)) {
    return {status, 0, std::vector<double>(pixels->begin(), pixels->end())};
  }
  try {
    const PixelWavelengths wavelengths =
        startNm >= kFiveLineStartNm ? WavelengthsOfPixels(kFiveLinesNm, kFiveGapsNm, positions)
                                    : WavelengthsOfPixels(kSixLinesNm, kSixGapsNm, positions);
    return {status, startNm, BinByNanometre(*pixels, wavelengths, startNm)};
  } catch (const ArithmeticFault&) {
    return {};
  }
}

bool FitTheDetector(const LinePositions& positions, int startNm) {
  if (IsBypass(positions)) {
    return true;
  }
  const std::span used(positions.data(), startNm >= kFiveLineStartNm ? 5U : 6U);
  const bool ascending = std::ranges::adjacent_find(used, std::greater_equal()) == used.end();
  if (!ascending || used.front() < 0 || used.back() > kLastPixel) {
    return false;
  }
  LineBuffer ones;
  for (std::size_t pixel = 0; pixel < kPixelsPerLine; ++pixel) {
    ones.bytes[2 * pixel] = 1;
  }
  ones.complete = true;
  const std::vector<double> points = LinesToWaves({&ones, 1}, positions, startNm).values;
  return 10 * std::ranges::count(points, 1.0) >= std::ptrdiff_t{9} * kMappedPoints;
}

Status FillSpectrum(std::span<const LineBuffer> lines, const LinePositions& positions, int startNm,
                    RawSpectrum& spectrum) {
  const MappedSpectrum mapped = LinesToWaves(lines, positions, startNm);
  if (mapped.startNm != RawSpectrum::kFirstNm || mapped.values.size() != RawSpectrum::kCount) {
    return kNotMappable;
  }
  std::copy(mapped.values.begin(), mapped.values.end(), spectrum.Values().begin());
  return mapped.status;
}

}  // namespace vexa

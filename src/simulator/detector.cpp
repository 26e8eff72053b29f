// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/detector.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "simulator/lamp.h"

namespace vexa::simulator {
namespace {

struct CalibrationLine {
  double pixel;
  double wavelengthNm;
};

constexpr std::array<CalibrationLine, 5> kCalibrationLines = {
    {{42, 811.531}, {102, 763.511}, {133, 738.393}, {186, 696.543}, {373, 546.074}}};

constexpr double kDarkOffsetCounts = 60.0;
constexpr double kDarkCountsPerMs = 0.006;
constexpr double kReferencePeakCountsPerMs = 575.0 / 3000.0;
constexpr double kReferencePercent = 4.0;
constexpr double kRoomPeakCountsPerMs = 30.0 / 3000.0;
constexpr double kElectronsPerCount = 200.0;
constexpr double kReadNoiseCounts = 1.0;

double LampSignal(double wavelengthNm, double ageHours = 0.0) {
  return LampPower(wavelengthNm, ageHours) * SpectralResponse(wavelengthNm);
}

double LampSignalPeak() {
  static const double kPeak = [] {
    double peak = 0.0;
    for (int pixel = 0; pixel < kPixels; ++pixel) {
      peak = std::max(peak, LampSignal(PixelWavelengthNm(pixel)));
    }
    return peak;
  }();
  return kPeak;
}

}  // namespace

double PixelWavelengthNm(int pixel) {
  std::size_t piece = 0;
  while (piece + 2 < kCalibrationLines.size() && pixel > kCalibrationLines[piece + 1].pixel) {
    ++piece;
  }
  const CalibrationLine& from = kCalibrationLines[piece];
  const CalibrationLine& to = kCalibrationLines[piece + 1];
  return from.wavelengthNm +
         (pixel - from.pixel) * (to.wavelengthNm - from.wavelengthNm) / (to.pixel - from.pixel);
}

double SpectralResponse(double wavelengthNm) {
  const double efficiency = 0.78 * (1.0 - std::exp(-(wavelengthNm - 320.0) / 60.0)) /
                            (1.0 + std::exp((wavelengthNm - 1000.0) / 50.0));
  const double blazePhase = std::numbers::pi * (450.0 / wavelengthNm - 1.0);
  const double blaze = blazePhase == 0.0 ? 1.0 : std::sin(blazePhase) / blazePhase;
  return efficiency * wavelengthNm * blaze * blaze;
}

PixelCounts MeanCounts(Sample sample, const Exposure& exposure, const Wear& wear) {
  return MeanCounts([sample](double nm) { return TrueReflectancePercent(sample, nm); }, exposure,
                    wear);
}

PixelCounts MeanCounts(const ReflectanceCurve& percent, const Exposure& exposure,
                       const Wear& wear) {
  const double shareOfLamp = exposure.lightShutterClosed ? wear.shutterLeakPercent / 100.0 : 1.0;
  const double lampPerPercent =
      shareOfLamp * kReferencePeakCountsPerMs / kReferencePercent / LampSignalPeak();
  const double room = exposure.eyepieceShutterOpen ? kRoomPeakCountsPerMs : 0.0;
  PixelCounts counts{};
  for (int pixel = 0; pixel < kPixels; ++pixel) {
    const double nm = PixelWavelengthNm(pixel);
    double countsPerMs = kDarkCountsPerMs + room * RoomLight(nm);
    if (lampPerPercent > 0.0) {
      countsPerMs += lampPerPercent * LampSignal(nm, wear.lampAgeHours) * percent(nm);
    }
    counts[static_cast<std::size_t>(pixel)] =
        kDarkOffsetCounts + countsPerMs * exposure.integrationMs;
  }
  return counts;
}

SensorLine ReadOut(const PixelCounts& mean, std::mt19937_64* noise) {
  SensorLine line{};
  for (std::size_t pixel = 0; pixel < mean.size(); ++pixel) {
    double counts = mean[pixel];
    if (noise != nullptr) {
      const double variance = counts / kElectronsPerCount + kReadNoiseCounts * kReadNoiseCounts;
      counts += std::normal_distribution<double>(0.0, std::sqrt(variance))(*noise);
    }
    line[pixel] = static_cast<std::uint16_t>(std::clamp(std::lround(counts), 0L, long{kFullScale}));
  }
  return line;
}

}  // namespace vexa::simulator

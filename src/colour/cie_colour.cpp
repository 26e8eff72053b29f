// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/cie_colour.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "base/arithmetic.h"
#include "base/translation.h"
#include "colour/colour_difference.h"
#include "colour/colour_tables.h"

namespace vexa {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kCubeRootLimit = 216.0 / 24389.0;
constexpr double kLineSlope = 24389.0 / 27.0;
constexpr double kLeastHueChroma = 1e-9;  // what is left of a grey after rounding is less
constexpr int kLineLastNm = 460;
constexpr ColourSettings kRvSettings{4, true, 440, 840};

/// Reflectance in percent below the first wavelength: a value there, how it goes on, and how far
/// down.
struct Continuation {
  double atFirst = 0.0;
  double perNm = 0.0;
  double least = 0.0;

  [[nodiscard]] double At(int nm) const {
    return std::max(least, atFirst + perNm * (nm - ReflectanceSpectrum::kFirstNm));
  }
};

Continuation LineOfLeastSquares(const ReflectanceSpectrum& reflectance) {
  constexpr int kFirst = ReflectanceSpectrum::kFirstNm;
  constexpr double kMiddle = (kFirst + kLineLastNm) / 2.0;
  double mean = 0.0;
  double moment = 0.0;
  double squares = 0.0;
  for (int nm = kFirst; nm <= kLineLastNm; ++nm) {
    mean += reflectance[nm] / (kLineLastNm - kFirst + 1);
    moment += (nm - kMiddle) * reflectance[nm];
    squares += (nm - kMiddle) * (nm - kMiddle);
  }
  const double slope = moment / squares;
  return {mean + slope * (kFirst - kMiddle), slope};
}

template <typename PercentAt>
TristimulusValues SumUp(PercentAt percentAt, const ColourSettings& settings) {
  const ColourTable& power = IlluminantTable(settings.illuminant);
  const ObserverTables& observer = ObserverTable(settings.observer2Deg);
  double n = 0.0;
  TristimulusValues sum;
  for (std::size_t i = 0; i < power.size(); ++i) {
    const double weight = percentAt(kTableFirstNm + kTableStepNm * static_cast<int>(i)) * power[i];
    n += power[i] * observer.y[i];
    sum.X += weight * observer.x[i];
    sum.Y += weight * observer.y[i];
    sum.Z += weight * observer.z[i];
  }
  // The percents bring the hundred that a perfect reflector's Y has.
  return {Divide(sum.X, n), Divide(sum.Y, n), Divide(sum.Z, n)};
}

TristimulusValues SumUp(const ReflectanceSpectrum& reflectance, const Continuation& below,
                        const ColourSettings& settings) {
  return SumUp(
      [&](int nm) { return ReflectanceSpectrum::Contains(nm) ? reflectance[nm] : below.At(nm); },
      settings);
}

double LabPart(double ratio) {
  return ratio > kCubeRootLimit ? std::cbrt(ratio) : (kLineSlope * ratio + 16.0) / 116.0;
}

LabColour ToLab(const TristimulusValues& values, const TristimulusValues& white) {
  const double fx = LabPart(Divide(values.X, white.X));
  const double fy = LabPart(Divide(values.Y, white.Y));
  const double fz = LabPart(Divide(values.Z, white.Z));
  return {116.0 * fy - 16.0, 500.0 * (fx - fy), 200.0 * (fy - fz)};
}

double HueDeg(const LabColour& lab) {
  const double angle = std::atan2(lab.b, lab.a) * 180.0 / std::numbers::pi;
  return angle < 0.0 ? angle + 360.0 : angle;
}

CieColour Compute(const ReflectanceSpectrum& reflectance, const ColourSettings& settings) {
  const double first = reflectance[ReflectanceSpectrum::kFirstNm];
  const Continuation constant{first, 0.0, first};
  const TristimulusValues white = SumUp([](int /*nm*/) { return 100.0; }, settings);
  const TristimulusValues values = SumUp(reflectance, constant, settings);
  const LabColour lab = ToLab(values, white);
  const LabColour other =
      ToLab(SumUp(reflectance, LineOfLeastSquares(reflectance), settings), white);
  const double sum = values.X + values.Y + values.Z;
  const double chroma = std::hypot(lab.a, lab.b);
  return {.X = values.X,
          .Y = values.Y,
          .Z = values.Z,
          .x = sum > 0.0 ? values.X / sum : kNotANumber,
          .y = sum > 0.0 ? values.Y / sum : kNotANumber,
          .L = lab.L,
          .a = lab.a,
          .b = lab.b,
          .C = chroma,
          .h = chroma < kLeastHueChroma ? kNotANumber : HueDeg(lab),
          .Rv = SumUp(reflectance, constant, kRvSettings).Y,
          .spread = std::hypot(other.L - lab.L, other.a - lab.a, other.b - lab.b)};
}

}  // namespace

std::optional<CieColour> CalcCieColour(const ReflectanceSpectrum& reflectance,
                                       const ColourSettings& settings) {
  try {
    const CieColour colour = Compute(reflectance, settings);
    const bool finite = std::isfinite(colour.X + colour.Y + colour.Z + colour.Rv + colour.L +
                                      colour.C + colour.spread);
    return finite ? std::optional(colour) : std::nullopt;
  } catch (const ArithmeticFault&) {
    return std::nullopt;
  }
}

QString CieRangeText() {
  return Text::tr(kCieRange);
}

}  // namespace vexa

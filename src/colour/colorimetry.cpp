// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colorimetry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "base/arithmetic.h"
#include "colour/colour_tables.h"

namespace vexa {
namespace {

struct WhitePoint {
  double xn;
  double zn;
};

constexpr double kYn = 100.0;
constexpr std::array<WhitePoint, 4> kWhite2Deg{
    {{109.851, 35.582}, {99.095, 85.313}, {98.072, 118.225}, {95.045, 108.892}}};
constexpr std::array<WhitePoint, 4> kWhite10Deg{
    {{111.146, 35.200}, {99.194, 84.356}, {97.283, 116.143}, {94.811, 107.333}}};

constexpr double kLinearLimit = 0.008856;
constexpr double kPi = 3.141592654;
constexpr std::size_t kLastUsedSample = 78;

double CubeRoot(double ratio) {
  return Power(ratio, 1.0 / 3.0);
}

double LinearPart(double ratio) {
  return 7.787 * ratio + 16.0 / 116.0;
}

void StoreLab(const TristimulusValues& values, const WhitePoint& white, ColourResult& result) {
  const double qx = Divide(values.X, white.xn);
  const double qy = Divide(values.Y, kYn);
  const double qz = Divide(values.Z, white.zn);
  const bool allAbove = qx > kLinearLimit && qy > kLinearLimit && qz > kLinearLimit;
  const auto part = allAbove ? CubeRoot : LinearPart;
  const double fx = part(qx);
  const double fy = part(qy);
  const double fz = part(qz);
  result.L = allAbove ? 116.0 * fy - 16.0 : 903.29 * qy;
  result.a = 500.0 * (fx - fy);
  result.b = 200.0 * (fy - fz);
}

double HueAngle(double a, double b) {
  const double angle = std::atan(Divide(b, a)) * 180.0 / kPi;
  if (a < 0.0) {
    return angle + 180.0;
  }
  return b < 0.0 ? angle + 360.0 : angle;
}

}  // namespace

TristimulusValues Tristimulus(const ReflectanceSpectrum& reflectance,
                              const ColourSettings& settings) {
  const ColourTable& power = IlluminantTable(settings.illuminant);
  const ObserverTables& observer = ObserverTable(settings.observer2Deg);
  const auto samples = reflectance.Values();
  double n = 0.0;
  TristimulusValues sum;
  for (std::size_t i = 0; i < power.size(); ++i) {
    const double factor = samples[std::min(i, kLastUsedSample) * kTableStepNm] / 100.0;
    n += power[i] * observer.y[i];
    sum.X += factor * power[i] * observer.x[i];
    sum.Y += factor * power[i] * observer.y[i];
    sum.Z += factor * power[i] * observer.z[i];
  }
  const double k = Divide(100.0, n);
  const TristimulusValues values{sum.X * k, sum.Y * k, sum.Z * k};
  if (!std::isfinite(values.X + values.Y + values.Z)) {
    throw ArithmeticFault("tristimulus values");
  }
  return values;
}

bool CalcColour(const ReflectanceSpectrum& reflectance, const ColourSettings& settings,
                ColourResult& result) {
  try {
    const TristimulusValues values = Tristimulus(reflectance, settings);
    const double sum = values.X + values.Y + values.Z;
    result.x = Divide(values.X, sum);
    result.y = Divide(values.Y, sum);
    result.Y = values.Y;
    const auto& whites = settings.observer2Deg ? kWhite2Deg : kWhite10Deg;
    StoreLab(values, whites[static_cast<std::size_t>(settings.illuminant - kFirstIlluminant)],
             result);
    result.h = HueAngle(result.a, result.b);
    result.C = SquareRoot(result.a * result.a + result.b * result.b);
    return true;
  } catch (const ArithmeticFault&) {
    return false;
  }
}

bool AverageReflectance(const ReflectanceSpectrum& reflectance, int from, int to, double& rm) {
  if (!ReflectanceSpectrum::Contains(from) || !ReflectanceSpectrum::Contains(to) || to < from) {
    return false;
  }
  const auto first = reflectance.Values().begin() + (from - ReflectanceSpectrum::kFirstNm);
  const int count = to - from + 1;
  try {
    rm = Divide(std::accumulate(first, first + count, 0.0), count);
    return true;
  } catch (const ArithmeticFault&) {
    return false;
  }
}

double Log10(double value) {
  if (!(value > 0.0)) {
    throw ArithmeticFault("logarithm");
  }
  return Divide(std::log(value), std::log(10.0));
}

}  // namespace vexa

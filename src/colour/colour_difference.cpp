// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colour_difference.h"

#include <cmath>
#include <numbers>

#include "base/arithmetic.h"

namespace vexa {
namespace {

double Radians(double degrees) {
  return degrees * std::numbers::pi / 180.0;
}

double Square(double value) {
  return value * value;
}

/// Length and direction of (a, b); the direction of no length is 0.
struct Polar {
  double chroma;
  double hueDeg;  ///< 0..360
};

Polar ToPolar(double a, double b) {
  const double hueDeg = (a == 0.0 && b == 0.0) ? 0.0 : std::atan2(b, a) * 180.0 / std::numbers::pi;
  return {SquareRoot(a * a + b * b), hueDeg < 0.0 ? hueDeg + 360.0 : hueDeg};
}

/// The turn from one hue to the other the short way round; 0 where either colour has no hue.
double HueTurnDeg(const Polar& from, const Polar& to) {
  if (from.chroma * to.chroma == 0.0) {
    return 0.0;
  }
  const double turn = to.hueDeg - from.hueDeg;
  if (turn > 180.0) {
    return turn - 360.0;
  }
  return turn < -180.0 ? turn + 360.0 : turn;
}

double HueDifference(const Polar& from, const Polar& to) {
  return 2.0 * SquareRoot(from.chroma * to.chroma) * std::sin(Radians(HueTurnDeg(from, to) / 2.0));
}

double MeanHueDeg(const Polar& one, const Polar& other) {
  const double sum = one.hueDeg + other.hueDeg;
  if (one.chroma * other.chroma == 0.0) {
    return sum;
  }
  if (std::abs(one.hueDeg - other.hueDeg) <= 180.0) {
    return sum / 2.0;
  }
  return sum < 360.0 ? (sum + 360.0) / 2.0 : (sum - 360.0) / 2.0;
}

/// sqrt(C^7 / (C^7 + 25^7)), the weight of saturated colours.
double SaturationWeight(double chroma) {
  const double seventh = Power(chroma, 7.0);
  return SquareRoot(Divide(seventh, seventh + 6103515625.0));
}

double Ciede2000(const LabColour& standard, const LabColour& sample) {
  const double meanChroma =
      (ToPolar(standard.a, standard.b).chroma + ToPolar(sample.a, sample.b).chroma) / 2.0;
  const double stretch = 1.0 + 0.5 * (1.0 - SaturationWeight(meanChroma));
  const Polar one = ToPolar(standard.a * stretch, standard.b);
  const Polar two = ToPolar(sample.a * stretch, sample.b);

  const double meanL = (standard.L + sample.L) / 2.0;
  const double meanC = (one.chroma + two.chroma) / 2.0;
  const double meanH = MeanHueDeg(one, two);
  const double t =
      1.0 - 0.17 * std::cos(Radians(meanH - 30.0)) + 0.24 * std::cos(Radians(2.0 * meanH)) +
      0.32 * std::cos(Radians(3.0 * meanH + 6.0)) - 0.20 * std::cos(Radians(4.0 * meanH - 63.0));
  const double offL = Square(meanL - 50.0);
  const double sl = 1.0 + Divide(0.015 * offL, SquareRoot(20.0 + offL));
  const double sc = 1.0 + 0.045 * meanC;
  const double sh = 1.0 + 0.015 * meanC * t;
  const double rotationDeg = 30.0 * std::exp(-Square((meanH - 275.0) / 25.0));
  const double rt = -std::sin(Radians(2.0 * rotationDeg)) * 2.0 * SaturationWeight(meanC);

  const double l = Divide(sample.L - standard.L, sl);
  const double c = Divide(two.chroma - one.chroma, sc);
  const double h = Divide(HueDifference(one, two), sh);
  return SquareRoot(l * l + c * c + h * h + rt * c * h);
}

}  // namespace

bool CompareColours(const LabColour& standard, const LabColour& sample,
                    ColourDifference& difference) {
  try {
    const Polar one = ToPolar(standard.a, standard.b);
    const Polar two = ToPolar(sample.a, sample.b);
    ColourDifference d;
    d.deltaL = sample.L - standard.L;
    d.deltaA = sample.a - standard.a;
    d.deltaB = sample.b - standard.b;
    d.deltaC = two.chroma - one.chroma;
    d.deltaH = HueDifference(one, two);
    d.deltaE = SquareRoot(Square(d.deltaL) + Square(d.deltaA) + Square(d.deltaB));
    d.deltaE00 = Ciede2000(standard, sample);
    difference = d;
    return true;
  } catch (const ArithmeticFault&) {
    return false;
  }
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/flag.h"
#include "base/spectrum.h"

namespace vexa {

/// Under which conditions colours are computed.
struct ColourSettings {
  std::int16_t illuminant = 1;  ///< 1 = A, 2 = B, 3 = C, 4 = D65
  Flag observer2Deg = true;     ///< 2 degrees (1931) or 10 degrees (1964)
  std::int16_t avgFrom = 440;   ///< nm, range of the average reflectance, both ends included
  std::int16_t avgTo = 840;
};

struct TristimulusValues {
  double X = 0.0;
  double Y = 0.0;
  double Z = 0.0;
};

/// The colour values of one spectrum.
struct ColourResult {
  double L = 0.0;  ///< CIE L*
  double a = 0.0;  ///< CIE a*
  double b = 0.0;  ///< CIE b*
  double x = 0.0;  ///< chromaticity
  double y = 0.0;
  double C = 0.0;   ///< chroma C*
  double h = 0.0;   ///< hue angle in degrees, 0 to 360
  double Rm = 0.0;  ///< average reflectance, percent
  double Y = 0.0;   ///< tristimulus Y, the luminous reflectance in percent

  /// False for a spectrum that reflects no light: it has no colour.
  [[nodiscard]] bool IsComputed() const { return x != 0.0 || y != 0.0; }

  bool operator==(const ColourResult&) const = default;
};

/// Tristimulus values, Y = 100 for a reflectance of 100 %. Table entry i (380 + 5 i nm) is paired
/// with the reflectance at 440 + 5 i nm: by index, with no shift between the two. The values at 835
/// and 840 nm are not used; the one at 830 nm stands in for them.
/// Throws ArithmeticFault for an illuminant outside 1..4 and for values that are not finite.
[[nodiscard]] TristimulusValues Tristimulus(const ReflectanceSpectrum& reflectance,
                                            const ColourSettings& settings);

/// Fills all of `result` but `Rm`. The white points are this instrument's own roundings, and one
/// decision between cube roots and straight lines is made for the whole colour: cube roots when
/// X/Xn, Y/Yn and Z/Zn are all above 0.008856 (otherwise as CIE 15:2004, 8.2.1).
/// False on an arithmetic fault (no light reflected, a* = 0) or an illuminant outside 1..4: what
/// was computed before it (x, y, Y, then L, a, b, then h, then C) is stored, the rest is as it was.
[[nodiscard]] bool CalcColour(const ReflectanceSpectrum& reflectance,
                              const ColourSettings& settings, ColourResult& result);

/// The mean reflectance over from..to nm, both ends included. False, with `rm` untouched, when a
/// bound is outside 440..840, when `to` is below `from`, or when the mean is not finite.
[[nodiscard]] bool AverageReflectance(const ReflectanceSpectrum& reflectance, int from, int to,
                                      double& rm);

/// The common logarithm as ln(value) / ln(10). Throws ArithmeticFault unless `value` is positive
/// and finite.
[[nodiscard]] double Log10(double value);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa {

struct LabColour {
  double L = 0.0;
  double a = 0.0;
  double b = 0.0;

  bool operator==(const LabColour&) const = default;
};

/// How a sample differs from a standard; the deltas are sample minus standard.
struct ColourDifference {
  double deltaL = 0.0;
  double deltaA = 0.0;
  double deltaB = 0.0;
  double deltaC = 0.0;
  double deltaH = 0.0;    ///< metric hue difference, positive counter-clockwise
  double deltaE = 0.0;    ///< Delta E*ab, the distance in L*a*b*
  double deltaE00 = 0.0;  ///< CIEDE2000 with kL = kC = kH = 1
};

/// The difference of two finite colours. False, with `difference` untouched, when a value
/// overflows.
///
/// Sources: CIE 15:2004, 8.2.1.3 (Delta H* as 2 sqrt(C1 C2) sin(dh / 2)); CIE 142-2001 for
/// CIEDE2000, with the conventions of Sharma, Wu and Dalal, Color Res. Appl. 30 (2005) 21-30, where
/// the formula leaves the hue open (mean hue, colours without chroma).
[[nodiscard]] bool CompareColours(const LabColour& standard, const LabColour& sample,
                                  ColourDifference& difference);

}  // namespace vexa

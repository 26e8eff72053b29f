// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "base/flag.h"

namespace vexa {

/// One entry every 5 nm; entry i is the tabulated value at 380 + 5 i nm.
using ColourTable = std::array<double, 81>;
inline constexpr int kTableFirstNm = 380;
inline constexpr int kTableStepNm = 5;

inline constexpr int kFirstIlluminant = 1;
inline constexpr int kLastIlluminant = 4;

/// The colour-matching functions of one standard observer.
struct ObserverTables {
  ColourTable x;
  ColourTable y;
  ColourTable z;
};

/// Relative spectral power of an illuminant, 1 = A, 2 = B, 3 = C, 4 = D65, kept to two decimals.
/// Throws ArithmeticFault for any other number.
///
/// Sources: A, C, D65 from CIE 15:2004, Table T.1, in the two-decimal form of ASTM E308-01 Table 3;
/// B from Wyszecki and Stiles, "Color Science", 2nd ed., Table II(3.3.4), with 89.65 at 515 nm (of
/// the two values in circulation the one that gives B its published chromaticity).
[[nodiscard]] const ColourTable& IlluminantTable(int illuminant);

/// "A", "B", "C" or "D65"; "-" for a number outside 1..4.
[[nodiscard]] QString IlluminantText(int illuminant);

/// The observer of 1931 (true, 2 degrees) or of 1964 (false, 10 degrees).
/// Source: CIE 15:2004, Tables T.4 and T.5, six decimals.
[[nodiscard]] const ObserverTables& ObserverTable(Flag observer2Deg);

}  // namespace vexa

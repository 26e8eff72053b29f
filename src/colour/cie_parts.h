// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "colour/cie_colour.h"
#include "colour/colour_values.h"

namespace vexa {

/// One value of a CIE colour: its name in JSON and tables of the command line, its symbol with its
/// unit for readers, and its format, which is that of the instrument's own value.
struct CiePart {
  const char* name;
  const char* symbol;
  double CieColour::*value;
  QStringView pattern;
};

inline constexpr std::array<CiePart, 12> kCieParts{{
    {"X", "X", &CieColour::X, colour_value::kLuminous.pattern},
    {"Y", "Y", &CieColour::Y, colour_value::kLuminous.pattern},
    {"Z", "Z", &CieColour::Z, colour_value::kLuminous.pattern},
    {"x", "x", &CieColour::x, colour_value::kChromaticityX.pattern},
    {"y", "y", &CieColour::y, colour_value::kChromaticityY.pattern},
    {"L", "L*", &CieColour::L, colour_value::kL.pattern},
    {"a", "a*", &CieColour::a, colour_value::kA.pattern},
    {"b", "b*", &CieColour::b, colour_value::kB.pattern},
    {"C", "C*", &CieColour::C, colour_value::kChroma.pattern},
    {"h", "h[°]", &CieColour::h, colour_value::kHue.pattern},
    {"Rv", "Rv[%]", &CieColour::Rv, colour_value::kLuminous.pattern},
    {"spread", "ΔE*ab", &CieColour::spread, u"##0.000"},
}};

/// The value as it is shown; "-" where it does not exist.
[[nodiscard]] QString CieValueText(const std::optional<CieColour>& colour, const CiePart& part);

/// That of the member `value`.
[[nodiscard]] QString CieValueText(const std::optional<CieColour>& colour,
                                   double CieColour::*value);

/// The symbol of the member `value`, with its unit.
[[nodiscard]] QString CieSymbol(double CieColour::*value);

/// What CIE colours are computed for, as "D65 / 2°".
[[nodiscard]] QString CieConditions(const ColourSettings& settings);

/// What stands above CIE values wherever they are listed: what they are, what they were computed
/// for, as CieConditions has it, and what is said of the range.
[[nodiscard]] QString CieCaption(const QString& conditions);

}  // namespace vexa

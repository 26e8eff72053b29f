// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "colour/cie_colour.h"

namespace vexa {

/// One value of a CIE colour: its name in JSON and tables of the command line, its symbol with its
/// unit for readers, the format that it is shown in.
struct CiePart {
  const char* name;
  const char* symbol;
  double CieColour::*value;
  const char16_t* pattern;
};

inline constexpr std::array<CiePart, 12> kCieParts{{
    {"X", "X", &CieColour::X, u"##0.0##"},
    {"Y", "Y", &CieColour::Y, u"##0.0##"},
    {"Z", "Z", &CieColour::Z, u"##0.0##"},
    {"x", "x", &CieColour::x, u"0.0000"},
    {"y", "y", &CieColour::y, u"0.0000"},
    {"L", "L*", &CieColour::L, u"##0.00"},
    {"a", "a*", &CieColour::a, u"0.0000"},
    {"b", "b*", &CieColour::b, u"0.0000"},
    {"C", "C*", &CieColour::C, u"##0.000"},
    {"h", "h[°]", &CieColour::h, u"##0.000"},
    {"Rv", "Rv[%]", &CieColour::Rv, u"##0.0##"},
    {"spread", "ΔE*ab", &CieColour::spread, u"##0.000"},
}};

/// The value as it is shown; "-" where it does not exist.
[[nodiscard]] QString CieValueText(const std::optional<CieColour>& colour, const CiePart& part);

/// That of the member `value`.
[[nodiscard]] QString CieValueText(const std::optional<CieColour>& colour,
                                   double CieColour::*value);

}  // namespace vexa

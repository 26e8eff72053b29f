// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "base/number_text.h"
#include "colour/colorimetry.h"

namespace vexa {

/// What a part of a ColourResult is called in JSON and on the command line, and how it is written.
struct ColourValue {
  const char* name;
  double ColourResult::*member;
  const char* unit;  ///< empty for none
  QStringView pattern;

  [[nodiscard]] double Of(const ColourResult& colour) const { return colour.*member; }

  /// The value with the digits it has everywhere, without its unit.
  [[nodiscard]] QString TextOf(const ColourResult& colour) const {
    return FormatNumber(Of(colour), pattern).trimmed();
  }
};

namespace colour_value {
inline constexpr ColourValue kL{"L", &ColourResult::L, "", u"##0.00"};
inline constexpr ColourValue kA{"a", &ColourResult::a, "", u"0.0000"};
inline constexpr ColourValue kB{"b", &ColourResult::b, "", u"0.0000"};
inline constexpr ColourValue kChromaticityX{"x", &ColourResult::x, "", u"0.0000"};
inline constexpr ColourValue kChromaticityY{"y", &ColourResult::y, "", u"0.0000"};
inline constexpr ColourValue kChroma{"C", &ColourResult::C, "", u"##0.000"};
inline constexpr ColourValue kHue{"h", &ColourResult::h, "°", u"##0.000"};
inline constexpr ColourValue kAverage{"Rm", &ColourResult::Rm, "%", u"##0.0##"};
inline constexpr ColourValue kLuminous{"Y", &ColourResult::Y, "%", u"##0.0##"};
}  // namespace colour_value

/// All of them, in the order of ColourResult.
inline constexpr std::array kColourValues{colour_value::kL,
                                          colour_value::kA,
                                          colour_value::kB,
                                          colour_value::kChromaticityX,
                                          colour_value::kChromaticityY,
                                          colour_value::kChroma,
                                          colour_value::kHue,
                                          colour_value::kAverage,
                                          colour_value::kLuminous};

}  // namespace vexa

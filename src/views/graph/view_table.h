// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>
#include <array>
#include <cstdint>

#include "base/translation.h"
#include "views/graph/abscissa.h"

namespace vexa {

/// How reflectances in percent are written.
inline constexpr QStringView kReflectancePattern = u"##0.000";

/// What the middle of the main window shows. The numbers are those of the environment file.
enum class View : std::uint8_t {
  kReflectance,
  kReflectanceText,
  kIndex,
  kLight,
  kLightText,
  kChromaticity,
  kReciprocal,
};

struct ViewEntry {
  View view;
  const char* caption;  ///< in the menu; a source text, to be translated when it is shown
  const char* name;     ///< of its picture
  QStringView pattern;  ///< of its values along the spectrum
  Abscissa abscissa = Abscissa::kWavelength;
};

/// The views in the order of the menu, which is that of their numbers.
inline constexpr std::array kViews{
    ViewEntry{View::kReflectance, QT_TRANSLATE_NOOP("Text", "反射率ｸﾞﾗﾌ"), "reflectance",
              kReflectancePattern},
    ViewEntry{View::kReflectanceText, QT_TRANSLATE_NOOP("Text", "反射率ﾃｷｽﾄ"), "reflectance-text",
              kReflectancePattern},
    ViewEntry{View::kIndex, QT_TRANSLATE_NOOP("Text", "屈折率ｸﾞﾗﾌ"), "index", u"0.0000"},
    ViewEntry{View::kLight, QT_TRANSLATE_NOOP("Text", "光量ｸﾞﾗﾌ"), "light", u"###0.0"},
    ViewEntry{View::kLightText, QT_TRANSLATE_NOOP("Text", "光量ﾃｷｽﾄ"), "light-text", u"###0.0"},
    ViewEntry{View::kChromaticity, QT_TRANSLATE_NOOP("Text", "色度図"), "chromaticity", {}},
    ViewEntry{View::kReciprocal, "1/λ", "reciprocal", kReflectancePattern, Abscissa::kReciprocal},
};

/// The view of a number (0..6); the reflectance graph for any other.
[[nodiscard]] constexpr const ViewEntry& ViewOf(int number) {
  const bool known = number >= 0 && number < static_cast<int>(kViews.size());
  return kViews[known ? static_cast<std::size_t>(number) : 0];
}

}  // namespace vexa

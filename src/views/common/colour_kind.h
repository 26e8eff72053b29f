// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/translation.h"

namespace vexa {

/// Which colour values are shown: the instrument's own, or the CIE ones, which any other instrument
/// gives. Wherever both can be shown, their names stand beside them.
enum class ColourKind { kInstrument, kCie };

/// The name in the source language, for files.
[[nodiscard]] constexpr const char* ColourKindName(ColourKind kind) {
  return kind == ColourKind::kCie ? "CIE" : QT_TRANSLATE_NOOP("Text", "装置固有");
}

[[nodiscard]] inline QString ColourKindText(ColourKind kind) {
  return Text::tr(ColourKindName(kind));
}

}  // namespace vexa

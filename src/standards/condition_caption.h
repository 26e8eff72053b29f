// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "base/translation.h"
#include "standards/standard_set.h"

namespace vexa {

/// The caption, in the language in force, of the condition at index 0..9.
[[nodiscard]] inline QString ConditionCaption(std::size_t index) {
  static constexpr std::array<const char*, kConditionCount> kCaptions{
      QT_TRANSLATE_NOOP("Text", "条件１"), QT_TRANSLATE_NOOP("Text", "条件２"),
      QT_TRANSLATE_NOOP("Text", "条件３"), QT_TRANSLATE_NOOP("Text", "条件４"),
      QT_TRANSLATE_NOOP("Text", "条件５"), QT_TRANSLATE_NOOP("Text", "条件６"),
      QT_TRANSLATE_NOOP("Text", "条件７"), QT_TRANSLATE_NOOP("Text", "条件８"),
      QT_TRANSLATE_NOOP("Text", "条件９"), QT_TRANSLATE_NOOP("Text", "条件１０")};
  return Text::tr(kCaptions.at(index));
}

}  // namespace vexa

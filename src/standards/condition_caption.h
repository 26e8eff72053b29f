// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "standards/standard_set.h"

namespace vexa {

/// The caption of the condition at index 0..9.
[[nodiscard]] inline QString ConditionCaption(std::size_t index) {
  static const std::array<QString, kConditionCount> kCaptions{
      QStringLiteral("条件１"),  QStringLiteral("条件２"), QStringLiteral("条件３"),
      QStringLiteral("条件４"),  QStringLiteral("条件５"), QStringLiteral("条件６"),
      QStringLiteral("条件７"),  QStringLiteral("条件８"), QStringLiteral("条件９"),
      QStringLiteral("条件１０")};
  return kCaptions.at(index);
}

}  // namespace vexa

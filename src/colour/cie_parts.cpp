// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/cie_parts.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace vexa {

QString CieValueText(const std::optional<CieColour>& colour, const CiePart& part) {
  return colour && std::isfinite((*colour).*part.value)
             ? FormatNumber((*colour).*part.value, part.pattern).trimmed()
             : QStringLiteral("-");
}

QString CieValueText(const std::optional<CieColour>& colour, double CieColour::*value) {
  return CieValueText(colour, *std::ranges::find(kCieParts, value, &CiePart::value));
}

}  // namespace vexa

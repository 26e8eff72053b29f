// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/cie_parts.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"
#include "colour/colour_tables.h"

namespace vexa {

QString CieValueText(const std::optional<CieColour>& colour, const CiePart& part) {
  return colour && std::isfinite((*colour).*part.value)
             ? FormatNumber((*colour).*part.value, part.pattern).trimmed()
             : QStringLiteral("-");
}

QString CieValueText(const std::optional<CieColour>& colour, double CieColour::*value) {
  return CieValueText(colour, *std::ranges::find(kCieParts, value, &CiePart::value));
}

QString CieSymbol(double CieColour::*value) {
  return QString::fromUtf8(std::ranges::find(kCieParts, value, &CiePart::value)->symbol);
}

QString CieConditions(const ColourSettings& settings) {
  return QStringLiteral("%1 / %2°")
      .arg(IlluminantText(settings.illuminant))
      .arg(settings.observer2Deg ? 2 : 10);
}

QString CieCaption(const QString& conditions) {
  return Text::tr("CIE測色値 (%1、Rv は D65 / 2°、%2)").arg(conditions, CieRangeText());
}

}  // namespace vexa

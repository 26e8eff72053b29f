// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cie_report.h"

#include "colour/cie_parts.h"

namespace vexa::cli {

QString CieText(const std::vector<CieLine>& lines, const ColourSettings& settings) {
  QString text = u'\n' + CieCaption(CieConditions(settings)) + QStringLiteral("\nslot");
  for (const CiePart& part : kCieParts) {
    text += QStringLiteral(" %1").arg(QLatin1String(part.name), 9);
  }
  for (const CieLine& line : lines) {
    text += QStringLiteral("\n%1").arg(line.slot, 4);
    for (const CiePart& part : kCieParts) {
      text += QStringLiteral(" %1").arg(CieValueText(line.colour, part), 9);
    }
  }
  return text + u'\n';
}

}  // namespace vexa::cli

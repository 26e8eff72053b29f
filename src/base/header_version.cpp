// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/header_version.h"

#include "base/number_text.h"

namespace vexa {

double ReadHeaderVersion(const QString& headerLine, QStringView kindWord) {
  const QString line = headerLine.toUpper();
  const bool rangeOrWindows =
      line.contains(QStringLiteral("440")) || line.contains(QStringLiteral("WINDOWS"));
  const QString mark = QStringLiteral("VER");
  const qsizetype version = line.indexOf(mark);
  if (!rangeOrWindows || !line.contains(QStringLiteral("VEXA")) ||
      !line.contains(kindWord.toString().toUpper()) || version < 0) {
    return 0.0;
  }
  return LeadingNumber(QStringView(line).sliced(version + mark.size())).value_or(0.0);
}

}  // namespace vexa

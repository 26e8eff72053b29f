// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/doubt_text.h"

namespace vexa {

QString DoubtTexts(const std::vector<ThicknessDoubt>& doubts) {
  QStringList lines;
  for (const ThicknessDoubt doubt : doubts) {
    lines << ThicknessDoubtText(doubt);
  }
  return lines.join(u'\n');
}

QString DoubtTexts(const QStringList& names) {
  QStringList lines;
  for (const QString& name : names) {
    if (const auto doubt = ThicknessDoubtOf(name)) {
      lines << ThicknessDoubtText(*doubt);
    }
  }
  return lines.join(u'\n');
}

QString DoubtMarkText(bool doubtful) {
  return doubtful ? QStringLiteral("▲ ") : QString();
}

}  // namespace vexa

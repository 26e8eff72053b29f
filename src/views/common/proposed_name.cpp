// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/proposed_name.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace vexa {

QString ProposedName(const VEXATYPE& state, const QString& given) {
  static const QRegularExpression kRefused(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]+"));
  constexpr qsizetype kMostCharacters = 60;  // of three bytes each, well below what a name may have
  QString name = given.isEmpty() ? QFileInfo(state.currentDataFileName).completeBaseName() : given;
  QDateTime latest;
  for (const MeasurementSlot& slot : state.measurementSlots) {
    if (!slot.valid) {
      continue;
    }
    if (name.isEmpty()) {
      name = slot.info.sampleNumber.simplified();
    }
    if (!latest.isValid() || slot.info.measuredAt > latest) {
      latest = slot.info.measuredAt;
    }
  }
  name = name.remove(kRefused).left(kMostCharacters);
  const QString day = latest.isValid() ? latest.toString(QStringLiteral("yyyyMMdd")) : QString();
  return name.isEmpty() || day.isEmpty() ? name + day : name + u'_' + day;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"

#include <QLocale>

namespace vexa {
namespace {

const QString kEmptyDate = QStringLiteral("0:00:00");
const QString kDateFormat = QStringLiteral("yyyy/M/d");
const QString kDateMinuteFormat = QStringLiteral("yyyy/M/d H:mm");
const QString kDateTimeFormat = QStringLiteral("yyyy/M/d H:mm:ss");

}  // namespace

QString DateTimeText(const QDateTime& time) {
  if (!time.isValid()) {
    return kEmptyDate;
  }
  const bool midnight = time.time() == QTime(0, 0);
  return QLocale::c().toString(time, midnight ? kDateFormat : kDateTimeFormat);
}

std::optional<QDateTime> ParseDateTime(const QString& text) {
  QString entry = text.simplified();
  if (entry == kEmptyDate) {
    return QDateTime();
  }
  entry.replace(u'-', u'/').replace(u'T', u' ');
  // The short forms read one digit or two.
  for (const QString& format : {kDateTimeFormat, kDateMinuteFormat, kDateFormat}) {
    const QDateTime time = QLocale::c().toDateTime(entry, format);
    if (time.isValid()) {
      return time;
    }
  }
  return std::nullopt;
}

}  // namespace vexa

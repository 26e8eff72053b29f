// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frame_age.h"

#include <QStringList>
#include <algorithm>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kTextPixels = 12;
constexpr int kPadding = 4;

// "10:32", and its date where that is another day.
QString TimeText(const QDateTime& time, const QDateTime& now) {
  return time.toString(time.date() == now.date() ? QStringLiteral("H:mm")
                                                 : QStringLiteral("M/d H:mm"));
}

QString AgeText(qint64 minutes) {
  const qint64 hours = minutes / 60;
  if (hours < 2) {
    return Text::tr("%1分前").arg(minutes);
  }
  return hours < 48 ? Text::tr("%1時間前").arg(hours) : Text::tr("%1日前").arg(hours / 24);
}

QString ChangesText(const FrameChanges& changes) {
  QStringList settings;
  if (changes.samplingTime) {
    settings << Text::tr("時間");
  }
  if (changes.averagingCount) {
    settings << Text::tr("回数");
  }
  QStringList texts;
  if (!settings.isEmpty()) {
    texts << settings.join(u'･') + Text::tr("変更");
  }
  if (changes.old) {
    texts << Text::tr("%1分経過").arg(kFrameAgeLimitMinutes);
  }
  if (changes.future) {
    texts << Text::tr("時計変更");
  }
  return texts.join(u' ');
}

QString SettingsText(const FrameConditions& frame) {
  return QStringLiteral("%1 ms × %2").arg(frame.samplingTimeMs).arg(frame.averagingCount);
}

}  // namespace

QLabel* SmallLabel(const QString& name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  QFont font = label->font();
  font.setPixelSize(kTextPixels);
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  label->setFixedHeight(2 * QFontMetrics(font).lineSpacing() + kPadding);
  return label;
}

void ShowFrameAge(QLabel& label, const FrameConditions& frame, const InstrumentSettings& settings,
                  const QDateTime& now) {
  const FrameChanges changes = ChangedSince(frame, settings, now);
  // The calibration shift is applied when a frame is read: none is out of date for its sake.
  const bool warn = changes.samplingTime || changes.averagingCount || changes.old || changes.future;
  const qint64 minutes = std::max(frame.takenAt.secsTo(now), qint64{0}) / 60;
  const QString time =
      QStringLiteral("%1 (%2)").arg(TimeText(frame.takenAt, now), AgeText(minutes));
  label.setText(time + u'\n' + (warn ? ChangesText(changes) : SettingsText(frame)));
  label.setToolTip(SettingsText(frame));
  if (const QString style = warn ? QString(kCalmWarning) : QString(); style != label.styleSheet()) {
    label.setStyleSheet(style);
  }
}

}  // namespace vexa

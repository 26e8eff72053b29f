// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLabel>

#include "measurement/frame_conditions.h"

namespace vexa {

/// Style sheet of a calm warning in the measuring bar.
inline const QString kCalmWarning = QStringLiteral(
    "background:#fff6dd; border:1px solid #e3c877; border-radius:3px; color:#5f4700;");

/// Two lines of small text for the measuring bar, as high whatever they show.
[[nodiscard]] QLabel* SmallLabel(const QString& name);

/// Shows in a small label when a frame was taken and under which settings, or, as a calm warning,
/// what has changed since.
void ShowFrameAge(QLabel& label, const FrameConditions& frame, const InstrumentSettings& settings,
                  const QDateTime& now);

}  // namespace vexa

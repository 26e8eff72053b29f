// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// Types of events that searches look for, too.
namespace event_type {
inline const QString kVerdictHeld = QStringLiteral("verdict-held");    ///< subject: the sample
inline const QString kDailyRelease = QStringLiteral("daily-release");  ///< subject: the check
}  // namespace event_type

}  // namespace vexa

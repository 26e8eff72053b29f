// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "measurement/session.h"

namespace vexa {

/// Puts into the store what the days before the demonstration might have left there, generated and
/// marked so by the operator's name: a daily check a day with the noise of the virtual instrument,
/// their frozen limits, and a finished gauge study. The check piece is what stands in slot 1. A
/// store that has daily checks already stays as it is. False when it cannot be written.
[[nodiscard]] bool KeepDemonstrationHistory(const VEXATYPE& state, const QDateTime& now,
                                            const QString& storePath, const QString& station);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace vexa {

/// A date as the program shows and writes it: "yyyy/M/d H:mm:ss", midnight as the date alone, and
/// "0:00:00" for an invalid one.
[[nodiscard]] QString DateTimeText(const QDateTime& time);

/// The date that a text stands for: "yyyy/M/d", alone or with "H:mm" or "H:mm:ss"; months to hours
/// of one digit or two, "-" in place of "/", "T" in place of the space between. An invalid date for
/// "0:00:00", nothing for any other text.
[[nodiscard]] std::optional<QDateTime> ParseDateTime(const QString& text);

}  // namespace vexa

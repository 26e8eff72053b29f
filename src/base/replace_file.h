// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace vexa {

/// Puts the bytes into the file. It is replaced whole or, when anything fails, left as it was; true
/// when written.
[[nodiscard]] bool ReplaceFile(const QString& path, const QByteArray& bytes);

}  // namespace vexa

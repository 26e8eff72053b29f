// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

namespace vexa {

/// Before a settings file is overwritten: where it exists but `isReadable()` denies it, a copy is
/// kept beside it as NAME.bad. False when that copy could not be made.
template <typename IsReadable>
[[nodiscard]] bool KeepUnreadable(const QString& path, IsReadable isReadable) {
  if (!QFile::exists(path) || isReadable()) {
    return true;
  }
  const QString copy = path + QStringLiteral(".bad");
  QFile::remove(copy);
  return QFile::copy(path, copy);
}

}  // namespace vexa

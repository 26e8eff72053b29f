// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QString>

namespace vexa {

/// Returns once the disk has what the file or directory holds; false when it did not take it.
[[nodiscard]] inline bool SyncPath(const QString& path) {
  const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  const bool synced = file >= 0 && ::fsync(file) == 0;
  if (file >= 0) {
    ::close(file);
  }
  return synced;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// A file on which this program holds record locks, as a database does, while this object lives.
/// Nothing else of the program may open it meanwhile: closing any descriptor of a file gives up all
/// locks that the process has on it (POSIX, fcntl), and another program would take it for unused.
/// From any thread.
class HeldFile {
 public:
  /// Files beside it whose names go on with a hyphen (a database's log) belong to it.
  explicit HeldFile(QString path);
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  /// Whether the file of that name, whatever the way to it, is held.
  [[nodiscard]] static bool Holds(const QString& path);

 private:
  QString path_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace vexa {

/// Whether a file was written; why not, in words, where it was not.
struct [[nodiscard]] WriteResult {
  bool written = true;
  QString reason = {};

  explicit operator bool() const { return written; }
};

/// Puts the bytes into the file: it is written beside it, flushed to the disk, given its name, and
/// the name is flushed, too. It is replaced whole or, when anything fails before it has its name,
/// left as it was.
WriteResult ReplaceFile(const QString& path, const QByteArray& bytes);

/// Whether a file of that name could be made or replaced now: its folder takes files, and no
/// device, pipe, folder or held file stands in its place.
WriteResult MayReplaceFile(const QString& path);

/// Makes the coming and going of names in a directory as lasting as the bytes behind them.
[[nodiscard]] bool FlushDirectory(const QString& directory);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/replace_file.h"

#include <QFileInfo>
#include <QSaveFile>

namespace vexa {

bool ReplaceFile(const QString& path, const QByteArray& bytes) {
  // A device or a pipe would be replaced by a file.
  if (const QFileInfo there(path); there.exists() && !there.isFile()) {
    return false;
  }
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    return false;
  }
  // A device that takes only a part of the bytes is told by these two alone, not by the commit.
  if (file.write(bytes) != bytes.size() || !file.flush()) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

}  // namespace vexa

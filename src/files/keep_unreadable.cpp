// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/keep_unreadable.h"

#include <QFile>
#include <QFileInfo>

namespace vexa {

QString FreeBadName(const QString& path) {
  QString name = path + QStringLiteral(".bad");
  for (int number = 2; QFile::exists(name); ++number) {
    name = path + QStringLiteral(".bad%1").arg(number);
  }
  return name;
}

WriteResult KeepUnreadable(const QString& path, const std::function<bool()>& isReadable) {
  // What is no regular file is not replaced either.
  if (!QFileInfo(path).isFile() || isReadable()) {
    return {};
  }
  QFile file(path);
  if (!file.copy(FreeBadName(path))) {
    return {false, file.errorString()};
  }
  return {};
}

}  // namespace vexa

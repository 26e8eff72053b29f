// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/held_file.h"

#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <algorithm>
#include <utility>

namespace vexa {
namespace {

QMutex mutex;

QStringList& Paths() {
  static QStringList paths;
  return paths;
}

}  // namespace

HeldFile::HeldFile(QString path) : path_(std::move(path)) {
  const QMutexLocker lock(&mutex);
  Paths() << path_;
}

HeldFile::~HeldFile() {
  const QMutexLocker lock(&mutex);
  Paths().removeOne(path_);
}

bool HeldFile::Holds(const QString& path) {
  const QString name = QFileInfo(path).canonicalFilePath();
  const QMutexLocker lock(&mutex);
  return !name.isEmpty() && std::ranges::any_of(Paths(), [&name](const QString& held) {
    const QString whole = QFileInfo(held).canonicalFilePath();
    return name == whole || name.startsWith(whole + u'-');
  });
}

}  // namespace vexa

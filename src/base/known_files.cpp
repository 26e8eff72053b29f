// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/known_files.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include "base/read_file.h"

namespace vexa {
namespace {

QString KeyOf(const QString& path) {
  return QFileInfo(path).absoluteFilePath();
}

// Empty where nothing can be read.
QByteArray DigestOf(const QString& path) {
  const ReadResult<QByteArray> bytes = ReadRegularFile(path);
  return bytes ? QCryptographicHash::hash(*bytes, QCryptographicHash::Sha256) : QByteArray();
}

}  // namespace

void KnownFiles::Remember(const QString& path) {
  digests_.insert(KeyOf(path), DigestOf(path));
}

bool KnownFiles::IsChangedByOthers(const QString& path) const {
  const auto known = digests_.constFind(KeyOf(path));
  if (known == digests_.constEnd()) {
    return false;
  }
  const QByteArray now = DigestOf(path);
  return !now.isEmpty() && now != *known;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "base/held_file.h"

namespace vexa {
namespace {

constexpr qint64 kChunk = qint64{128} * 1024;

FileFault OpenFault() {
  const bool missing = errno == ENOENT || errno == ENOTDIR;
  // A socket cannot be opened, a pipe without a writer would be.
  const bool special = errno == ENXIO;
  return {.kind = missing   ? FileFaultKind::kMissing
                  : special ? FileFaultKind::kNotRegular
                            : FileFaultKind::kUnreadable};
}

}  // namespace

ReadResult<QByteArray> ReadRegularFile(const QString& path, qsizetype largest) {
  if (HeldFile::Holds(path)) {
    return FileFault{.kind = FileFaultKind::kNotRegular};
  }
  // Opening a pipe waits for its other end unless it is told not to.
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor < 0) {
    return OpenFault();
  }
  QFile file;
  if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    ::close(descriptor);
    return FileFault{.kind = FileFaultKind::kUnreadable};
  }
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    return FileFault{.kind = FileFaultKind::kNotRegular};
  }
  QByteArray bytes;
  for (QByteArray chunk = file.read(kChunk); !chunk.isEmpty(); chunk = file.read(kChunk)) {
    bytes += chunk;
    if (bytes.size() > largest) {
      return FileFault{.kind = FileFaultKind::kTooLarge};
    }
  }
  if (file.error() != QFile::NoError) {
    return FileFault{.kind = FileFaultKind::kUnreadable};
  }
  return bytes;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/replace_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstring>

#include "base/held_file.h"
#include "base/translation.h"

namespace vexa {
namespace {

QString SystemText(int error) {
  return Text::tr("ｼｽﾃﾑのｴﾗｰ:") + QString::fromLocal8Bit(std::strerror(error));
}

QString ReasonText(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return Text::tr("ﾃﾞｨｽｸに空きがありません。");
    case EACCES:
    case EPERM:
      return Text::tr("書き込みの許可がありません。");
    case EROFS:
      return Text::tr("読み取り専用のﾃﾞｨｽｸです。");
    case ENOENT:
    case ENOTDIR:
      return Text::tr("ﾌｫﾙﾀﾞがありません。");
    default:
      return SystemText(error);
  }
}

// The error number is that of the call that failed: what Qt does afterwards may change it.
WriteResult Failed(int error) {
  return {false, ReasonText(error == 0 ? EIO : error)};
}

}  // namespace

WriteResult MayReplaceFile(const QString& path) {
  const QFileInfo file(path);
  if (file.exists() && (!file.isFile() || HeldFile::Holds(path))) {
    return {false, Text::tr("通常のﾌｧｲﾙではありません。")};
  }
  const QFileInfo folder(file.absolutePath());
  return !folder.isDir() ? Failed(ENOENT) : folder.isWritable() ? WriteResult{} : Failed(EACCES);
}

WriteResult ReplaceFile(const QString& path, const QByteArray& bytes) {
  // A device or a pipe would be replaced by a file.
  if (WriteResult may = MayReplaceFile(path); !may) {
    return may;
  }
  QSaveFile file(path);
  errno = 0;
  if (!file.open(QIODevice::WriteOnly)) {
    return Failed(file.error() == QFileDevice::WriteError ? EACCES : errno);
  }
  // A device that takes only a part of the bytes is told by these two alone, not by the commit.
  errno = 0;
  if (file.write(bytes) != bytes.size() || !file.flush() || ::fsync(file.handle()) != 0) {
    const int error = file.error() == QFileDevice::ResourceError ? ENOSPC : errno;
    file.cancelWriting();
    return Failed(error);
  }
  errno = 0;
  if (!file.commit() || !FlushDirectory(QFileInfo(path).absolutePath())) {
    return Failed(errno);
  }
  return {};
}

bool FlushDirectory(const QString& directory) {
  const int descriptor =
      ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // What may not be read may be written to all the same; nothing more can be done for it.
  if (descriptor < 0) {
    return errno == EACCES;
  }
  const bool flushed = ::fsync(descriptor) == 0 || errno == EINVAL;
  const int error = errno;
  ::close(descriptor);
  errno = error;
  return flushed;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/port_link.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstring>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;

/// Where the link points; empty when it is no link.
QByteArray LinkTarget(const QByteArray& path) {
  std::array<char, 4096> target;
  const ssize_t length = ::readlink(path.constData(), target.data(), target.size());
  return length > 0 ? QByteArray(target.data(), length) : QByteArray();
}

}  // namespace

PortLink::PortLink(const QString& directory, int port)
    : path_(QDir(directory).absoluteFilePath(u"com%1"_s.arg(port))),
      encodedPath_(QFile::encodeName(path_)),
      lock_(path_ + u".lock"_s) {
  lock_.setStaleLockTime(0);
}

QString PortLink::Make(const QByteArray& devicePath) {
  const bool abandoned = !lock_.isLocked() && QFileInfo::exists(lock_.fileName());
  if (!lock_.isLocked() && !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError) {
    return u"%1 exists and is in use"_s.arg(path_);
  }
  const QByteArray target = LinkTarget(encodedPath_);
  const bool abandonedLink = abandoned && target.startsWith("/dev/pts/");
  if (!target.isEmpty() && (target == devicePath || abandonedLink || LeadsNowhere())) {
    ::unlink(encodedPath_.constData());
  }
  if (::symlink(devicePath.constData(), encodedPath_.constData()) != 0) {
    return errno == EEXIST
               ? u"%1 exists and is in use"_s.arg(path_)
               : u"cannot make %1: %2"_s.arg(path_, QString::fromLocal8Bit(std::strerror(errno)));
  }
  devicePath_ = devicePath;
  return {};
}

void PortLink::Remove() {
  if (!devicePath_.isEmpty() && LinkTarget(encodedPath_) == devicePath_) {
    ::unlink(encodedPath_.constData());
  }
  devicePath_.clear();
  lock_.unlock();
}

bool PortLink::LeadsNowhere() const {
  return ::access(encodedPath_.constData(), F_OK) != 0 && errno == ENOENT;
}

}  // namespace vexa::simulator

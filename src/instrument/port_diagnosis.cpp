// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/port_diagnosis.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "base/translation.h"

namespace vexa {
namespace {

/// "com5 (/dev/ttyUSB0)" for a link, else the path.
QString DeviceName(const QString& path) {
  const QFileInfo device(path);
  return device.isSymLink()
             ? QStringLiteral("%1 (%2)").arg(device.fileName(), device.symLinkTarget())
             : path;
}

// Of the two ends of a pseudo-terminal this one holds the other: it is the device, no rival.
bool IsDeviceItself(const QFileInfo& openFile, const QString& process, const QString& device) {
  if (!openFile.symLinkTarget().endsWith(QStringLiteral("/ptmx"))) {
    return false;
  }
  QFile info(QStringLiteral("/proc/%1/fdinfo/%2").arg(process, openFile.fileName()));
  const QByteArray index = "tty-index:\t" + QFileInfo(device).fileName().toLatin1() + '\n';
  return info.open(QIODevice::ReadOnly) && info.readAll().contains(index);
}

/// The other processes that have the device open: "minicom (PID 812)". Those of other users are
/// not seen without their rights.
QStringList Users(const QString& path) {
  const QString device = QFileInfo(path).canonicalFilePath();
  QStringList users;
  const QDir processes(QStringLiteral("/proc"));
  for (const QString& process : processes.entryList({QStringLiteral("[1-9]*")}, QDir::Dirs)) {
    if (device.isEmpty() || process.toLongLong() == QCoreApplication::applicationPid()) {
      continue;
    }
    const QDir files(processes.filePath(process + QStringLiteral("/fd")));
    const QFileInfoList open = files.entryInfoList(QDir::Files | QDir::System);
    const bool uses = std::ranges::any_of(
        open, [&](const QFileInfo& file) { return file.symLinkTarget() == device; });
    if (!uses || std::ranges::any_of(open, [&](const QFileInfo& file) {
          return IsDeviceItself(file, process, device);
        })) {
      continue;
    }
    QFile name(processes.filePath(process + QStringLiteral("/comm")));
    const bool named = name.open(QIODevice::ReadOnly);
    users << QStringLiteral("%1 (PID %2)")
                 .arg(named ? QString::fromUtf8(name.readAll().trimmed()) : QString(), process);
  }
  return users;
}

QString ExplainUse(const QString& path) {
  const QStringList users = Users(path);
  return users.isEmpty() ? QString()
                         : Text::tr("%1 は他のプログラムが使用中です: %2")
                               .arg(DeviceName(path), users.join(QStringLiteral(", ")));
}

}  // namespace

QString ExplainClosedPort(const QString& devicePath) {
  const QFileInfo device(devicePath);
  if (!device.exists()) {
    return Text::tr("%1 という装置がありません。ケーブルとポート番号を確認して下さい。")
        .arg(DeviceName(devicePath));
  }
  if (::access(QFile::encodeName(devicePath).constData(), R_OK | W_OK) != 0) {
    return Text::tr("%1 を使う権限がありません。グループ %2 のユーザーだけが使えます。")
        .arg(DeviceName(devicePath), device.group());
  }
  const QString use = ExplainUse(devicePath);
  return use.isEmpty()
             ? Text::tr("%1 をシリアルポートとして開けません。").arg(DeviceName(devicePath))
             : use;
}

QString ExplainSilentPort(const QString& devicePath) {
  const QString use = ExplainUse(devicePath);
  return use.isEmpty() ? Text::tr(
                             "%1 は開けましたが、コントローラから正しい応答がありません。"
                             "電源とケーブルを確認して下さい。")
                             .arg(DeviceName(devicePath))
                       : use;
}

}  // namespace vexa

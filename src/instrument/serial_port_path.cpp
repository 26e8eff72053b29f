// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/serial_port_path.h"

#include <QDir>
#include <QFileInfo>

namespace vexa {

QString SerialPortPath(const QString& programDirectory, int number) {
  const QFileInfo entry(QDir(programDirectory), QStringLiteral("com%1").arg(number));
  if (entry.isSymLink() || entry.exists()) {
    return entry.absoluteFilePath();
  }
  return QStringLiteral("/dev/ttyS%1").arg(number - 1);
}

}  // namespace vexa

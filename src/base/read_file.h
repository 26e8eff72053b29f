// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include "base/file_fault.h"

namespace vexa {

/// The largest file of settings or data that is read, in bytes.
inline constexpr qsizetype kLargestFile = qsizetype{64} * 1024 * 1024;

/// The bytes of a regular file of at most `largest` bytes. Anything else of that name (a pipe, a
/// socket, a device) is a fault at once: reading it might never end. So is a held file.
ReadResult<QByteArray> ReadRegularFile(const QString& path, qsizetype largest = kLargestFile);

}  // namespace vexa

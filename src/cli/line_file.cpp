// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/line_file.h"

#include <QFile>
#include <algorithm>

#include "base/translation.h"
#include "cli/console.h"

namespace vexa::cli {

std::optional<LineBuffers> ReadLineFile(const QString& path) {
  constexpr qint64 kLargest = kMaxLines * kBytesPerLine;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    Complain(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return std::nullopt;
  }
  // One byte more than allowed is enough to know that a file is too long.
  const QByteArray bytes = file.read(kLargest + 1);
  const auto size = static_cast<std::size_t>(bytes.size());
  if (size == 0 || size > kLargest || size % kBytesPerLine != 0) {
    Complain(Text::tr("%1：1024 バイトの検出器ライン 1 ～ 16 本ではありません").arg(path));
    return std::nullopt;
  }
  LineBuffers lines;
  for (std::size_t n = 0; n < size / kBytesPerLine; ++n) {
    std::copy_n(bytes.begin() + static_cast<qsizetype>(n * kBytesPerLine), kBytesPerLine,
                lines[n].bytes.begin());
    lines[n].complete = true;
  }
  return lines;
}

}  // namespace vexa::cli

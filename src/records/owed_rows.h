// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QList>
#include <QString>
#include <functional>

#include "records/row.h"

namespace vexa {

/// Rows that a store could not take: a file beside it, appended to and flushed to the disk, that
/// several programs share. A torn or damaged entry costs itself alone.
class OwedRows {
 public:
  explicit OwedRows(QString path) : path_(std::move(path)) {}

  /// Puts the rows behind the others and returns once the disk has them; false when it has not.
  [[nodiscard]] bool Add(const QList<Row>& rows) const;

  /// Nothing is owed: a look at the file, without its lock.
  [[nodiscard]] bool IsEmpty() const;

  [[nodiscard]] QList<Row> Read() const;

  /// Hands all rows to `pay` while no other program can add or pay, and empties the file when it
  /// returns true. True when nothing is owed any more. A file with a damaged entry is copied to
  /// NAME.bad before it is emptied.
  [[nodiscard]] bool Pay(const std::function<bool(const QList<Row>& rows)>& pay) const;

 private:
  [[nodiscard]] bool Hold(QFile& file) const;

  QString path_;
};

}  // namespace vexa

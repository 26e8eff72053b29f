// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include "records/owed_rows.h"
#include "records/record_store.h"

namespace vexa {

/// What became of rows that were to be kept.
enum class Kept {
  kStored,  ///< they are in the store
  kOwed,    ///< they are in the file of owed rows, and come into the store later
  kHeld,    ///< neither could be written: they live in this program alone, and are tried again
};

/// Puts rows into the store of a program directory, `records.db`, which is made by the first one. A
/// store that takes nothing never holds up the caller for long: the rows are owed in `records.owed`
/// and paid, in their order, before the next ones, or by a timer. A fault is announced once, until
/// the store takes rows again.
class RecordKeeper : public QObject {
  Q_OBJECT

 public:
  /// `waitMs`: how long another program may hold the store.
  explicit RecordKeeper(const QString& storePath, int waitMs = 1000);

  /// Returns once the rows are on the disk, if the disk takes them.
  Kept Keep(const QList<Row>& rows);

  /// Tries again what is owed; true when nothing is any more. The timer asks for it every 30 s.
  bool Pay();

  /// How many rows live in this program alone; and all that are not in the store.
  [[nodiscard]] qsizetype HeldCount() const { return held_.size(); }
  [[nodiscard]] qsizetype OwedCount() const { return owed_.Read().size() + held_.size(); }

 signals:
  void Faulted(vexa::StoreFault fault);  ///< the first time that rows were not stored
  void Held(vexa::StoreFault fault);     ///< the first time that rows live in this program alone
  void Paid();                           ///< all that was owed is in the store
  void Stored();                         ///< rows came into the store
  void Replaced();  ///< the store that took rows before is gone; they go into what has its name now

 private:
  [[nodiscard]] StoreFault Store(const QList<Row>& rows);
  [[nodiscard]] StoreFault PayOwed();
  void Tell(StoreFault fault);

  QString path_;
  int waitMs_;
  RecordStore store_;
  OwedRows owed_;
  QList<Row> held_;
  QTimer again_;
  bool told_ = false;
  bool toldHeld_ = false;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "base/held_file.h"
#include "records/record_source.h"
#include "records/row.h"
#include "records/sql_session.h"

namespace vexa {

/// The number and the hash of a store's last row: whoever knows them can tell whether the rows up
/// to there are still the same.
struct ChainHead {
  qint64 number = 0;  ///< 0 without rows
  QByteArray hash = ChainStart();
};

/// What a check of all rows found.
struct ChainCheck {
  enum class Damage { kNone, kMissing, kChanged, kUnreadable };

  qint64 rows = 0;
  Damage damage = Damage::kNone;  ///< kChanged also for a row put in from outside
  qint64 firstDamaged = 0;        ///< the number of the row; 0 without damage
  ChainHead head;
};

/// The records of one program directory, a SQLite database. Rows are put behind the last and never
/// changed; each holds the hash of the one before it and its own content. Several programs may
/// write at once. Not for several threads; nothing throws.
class RecordStore : public RecordSource {
 public:
  enum class Mode {
    kRead,   ///< the file must be there
    kWrite,  ///< it is made when it is not
  };

  /// How long another program may hold the store before kLocked is given up.
  static constexpr int kWaitMs = 5000;

  [[nodiscard]] StoreFault Open(const QString& path, Mode mode, int waitMs = kWaitMs);
  void Close();

  /// The file that was opened is another than the one of that name that was open before: somebody
  /// has removed, moved or replaced it.
  [[nodiscard]] bool IsOther() const { return isOther_; }

  /// Open, and the file still has its name.
  [[nodiscard]] bool IsInPlace() const;

  /// Puts the rows behind the last, all or none, and returns once the disk has them. A row whose id
  /// is there already is left out; the numbers of all are returned in their order.
  [[nodiscard]] Answer<QList<qint64>> Append(const QList<Row>& rows);

  /// The same when `allowed`, which may read this store, agrees; kRefused otherwise. No other
  /// program can write between its reading and the rows.
  [[nodiscard]] Answer<QList<qint64>> AppendIf(const QList<Row>& rows,
                                               const std::function<bool()>& allowed);

  /// The row by its id, or by its number in digits; kMissing when there is none.
  [[nodiscard]] Answer<StoredRow> Find(const QString& idOrNumber) const override;

  /// At most `limit` rows behind the one of that number.
  [[nodiscard]] Answer<QList<StoredRow>> RowsAfter(qint64 number, int limit) const;

  [[nodiscard]] Answer<QList<RecordSummary>> Search(const RecordQuery& query) const override;
  [[nodiscard]] StoreFault Visit(
      const RecordQuery& query,
      const std::function<void(const StoredRow& row)>& visit) const override;

  /// The events of that type, of that subject unless it is empty, the newest first.
  [[nodiscard]] Answer<QList<StoredRow>> Events(const QString& type, const QString& subject = {},
                                                int limit = 100) const;

  /// The stations whose rows it holds: one, unless the station got another name.
  [[nodiscard]] Answer<QStringList> Stations() const;

  /// Whether another sample has taken the place of this one.
  [[nodiscard]] Answer<bool> IsSuperseded(const QString& id) const;

  [[nodiscard]] Answer<ChainHead> Head() const;
  [[nodiscard]] Answer<ChainCheck> Verify() const;

  /// Writes a copy of the whole store, as it is at one moment, while others write. An earlier copy
  /// is replaced; anything else of that name, the store itself among it, is refused.
  [[nodiscard]] StoreFault Backup(const QString& path) const;

 private:
  struct FileIdentity {
    quint64 device = 0;
    quint64 node = 0;
    bool operator==(const FileIdentity&) const = default;
  };
  [[nodiscard]] static std::optional<FileIdentity> IdentityOf(const QString& path);
  [[nodiscard]] StoreFault Prepare(Mode mode, int waitMs) const;
  [[nodiscard]] Answer<ChainHead> End() const;
  [[nodiscard]] bool IsEarlierCopy(const QString& path) const;
  [[nodiscard]] Answer<QList<StoredRow>> Rows(const QString& condition,
                                              const QVariantList& values) const;

  std::optional<HeldFile> held_;  ///< as long as the database is open
  SqlSession session_;
  QString path_;
  std::optional<FileIdentity> identity_;  ///< of the file opened last
  bool isOther_ = false;
};

/// The head of the store of that path; nothing when it has no rows, or cannot be read at once.
[[nodiscard]] std::optional<ChainHead> HeadOf(const QString& path);

}  // namespace vexa

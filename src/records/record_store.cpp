// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_store.h"

#include <sys/stat.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <algorithm>

#include "records/record_schema.h"
#include "records/sync_path.h"

namespace vexa {

StoreFault RecordStore::Open(const QString& path, Mode mode, int waitMs) {
  // Looked at while the earlier file is still open: a new one cannot have its number yet.
  const bool isOther = path == path_ && identity_ && IdentityOf(path) != identity_;
  path_ = path;
  if (mode == Mode::kRead && !QFileInfo::exists(path)) {
    return StoreFault::kMissing;
  }
  held_.emplace(path);
  StoreFault fault = session_.Open(QStringLiteral("QSQLITE"), path,
                                   QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(waitMs));
  if (fault == StoreFault::kNone) {
    fault = Prepare(mode, waitMs);
  }
  const std::optional<FileIdentity> identity = IdentityOf(path);
  if (fault != StoreFault::kNone || !identity) {
    Close();
    return fault != StoreFault::kNone ? fault : StoreFault::kMissing;
  }
  identity_ = identity;
  isOther_ = isOther;
  return StoreFault::kNone;
}

void RecordStore::Close() {
  session_.Close();
  held_.reset();
}

bool RecordStore::IsInPlace() const {
  return session_.IsOpen() && IdentityOf(path_) == identity_;
}

Answer<QList<qint64>> RecordStore::Append(const QList<Row>& rows) {
  return AppendIf(rows, [] { return true; });
}

Answer<QList<qint64>> RecordStore::AppendIf(const QList<Row>& rows,
                                            const std::function<bool()>& allowed) {
  Transaction transaction(session_, QStringLiteral("BEGIN IMMEDIATE"));
  if (transaction.Fault() != StoreFault::kNone) {
    return {{}, transaction.Fault()};
  }
  Answer<ChainHead> end = End();
  if (!end || !allowed()) {
    return {{}, end ? StoreFault::kRefused : end.fault};
  }
  Answer<QList<qint64>> numbers;
  for (const Row& row : rows) {
    const Answer<QVariant> there =
        session_.Value(QStringLiteral("SELECT number FROM record_row WHERE id = ?"), {row.id});
    if (!there) {
      return {{}, there.fault};
    }
    if (there.value.isValid()) {
      numbers.value << there.value.toLongLong();
      continue;
    }
    const qint64 number = end.value.number + 1;
    const QByteArray hash = ChainHash(end.value.hash, number, row);
    const StoreFault fault = session_.Run(
        InsertStatement(),
        {number, QString::fromUtf8(row.document), row.numbers.isNull() ? "" : row.numbers, hash});
    if (fault != StoreFault::kNone) {
      return {{}, fault};
    }
    end.value = {number, hash};
    numbers.value << number;
  }
  numbers.fault = transaction.Commit();
  return numbers;
}

Answer<StoredRow> RecordStore::Find(const QString& idOrNumber) const {
  bool isNumber = false;
  const qint64 number = idOrNumber.toLongLong(&isNumber);
  return isNumber ? FindRow(session_, QStringLiteral("number"), number)
                  : FindRow(session_, QStringLiteral("id"), idOrNumber);
}

Answer<QList<StoredRow>> RecordStore::RowsAfter(qint64 number, int limit) const {
  return Rows(QStringLiteral("number > ? ORDER BY number LIMIT ?"), {number, limit});
}

Answer<QList<StoredRow>> RecordStore::Events(const QString& type, const QString& subject,
                                             int limit) const {
  return Rows(QStringLiteral("kind = 'event' AND json_extract(document, '$.type') = ?"
                             " AND (? = '' OR subject = ?) ORDER BY utc DESC, number DESC LIMIT ?"),
              {type, subject.isNull() ? QStringLiteral("") : subject, subject, limit});
}

Answer<QList<RecordSummary>> RecordStore::Search(const RecordQuery& query) const {
  return SearchRecords(session_, query);
}

StoreFault RecordStore::Visit(const RecordQuery& query,
                              const std::function<void(const StoredRow& row)>& visit) const {
  return VisitRows(session_, query, visit);
}

Answer<QStringList> RecordStore::Stations() const {
  Answer<QSqlQuery> query =
      session_.Select(QStringLiteral("SELECT DISTINCT station FROM record_row"));
  Answer<QStringList> stations{{}, query.fault};
  while (query && query.value.next()) {
    stations.value << query.value.value(0).toString();
  }
  return stations;
}

Answer<bool> RecordStore::IsSuperseded(const QString& id) const {
  const Answer<QVariant> found =
      session_.Value(QStringLiteral("SELECT 1 FROM record_row WHERE supersedes = ?"), {id});
  return {found.value.isValid(), found.fault};
}

Answer<ChainHead> RecordStore::Head() const {
  Answer<QSqlQuery> query = session_.Select(
      QStringLiteral("SELECT number, hash FROM record_row ORDER BY number DESC LIMIT 1"));
  if (!query) {
    return {{}, query.fault};
  }
  ChainHead head;
  if (query.value.next()) {
    head = {query.value.value(0).toLongLong(), query.value.value(1).toByteArray()};
  }
  return {head, FaultOf(query.value.lastError())};
}

Answer<ChainCheck> RecordStore::Verify() const {
  const Transaction moment(session_, QStringLiteral("BEGIN"));
  const Answer<ChainHead> end = End();
  Answer<QSqlQuery> query =
      session_.Select(QStringLiteral("SELECT %1, %2 FROM record_row ORDER BY number")
                          .arg(kRowColumns, RepeatsDocument()));
  if (!end || !query) {
    const StoreFault fault = end ? query.fault : end.fault;
    return fault == StoreFault::kDamaged
               ? Answer<ChainCheck>{{0, ChainCheck::Damage::kUnreadable, 1, {}}}
               : Answer<ChainCheck>{{}, fault};
  }
  Answer<ChainCheck> answer;
  ChainCheck& check = answer.value;
  const auto damaged = [&check](qint64 number, ChainCheck::Damage damage) {
    if (check.damage == ChainCheck::Damage::kNone) {
      check.damage = damage;
      check.firstDamaged = number;
    }
  };
  while (query.value.next()) {
    const StoredRow row = RowOf(query.value);
    ++check.rows;
    if (row.number != check.head.number + 1) {
      damaged(check.head.number + 1, ChainCheck::Damage::kMissing);
    } else if (row.hash != ChainHash(check.head.hash, row.number, row.row) ||
               !query.value.value(5).toBool()) {
      damaged(row.number, ChainCheck::Damage::kChanged);
    }
    check.head = {row.number, row.hash};
  }
  const StoreFault ended = FaultOf(query.value.lastError());
  // The database remembers the last number that it ever gave.
  if (ended == StoreFault::kNone && check.head.number != end.value.number) {
    damaged(check.head.number + 1, ChainCheck::Damage::kMissing);
  }
  answer.fault = ended;
  query.value.finish();
  if (answer.fault == StoreFault::kDamaged) {
    answer.fault = StoreFault::kNone;
    damaged(check.head.number + 1, ChainCheck::Damage::kUnreadable);
  }
  return answer;
}

// Nothing else may be replaced: its last row is one of these.
bool RecordStore::IsEarlierCopy(const QString& path) const {
  RecordStore copy;
  if (!QFileInfo(path).isFile() || copy.Open(path, Mode::kRead) != StoreFault::kNone) {
    return false;
  }
  const Answer<ChainHead> head = copy.Head();
  const Answer<StoredRow> same = Find(QString::number(head.value.number));
  return head && (head.value.number == 0 || (same && same.value.hash == head.value.hash));
}

StoreFault RecordStore::Backup(const QString& path) const {
  const QString part = path + QStringLiteral(".part");
  if (IdentityOf(path) == identity_ || (QFile::exists(path) && !IsEarlierCopy(path))) {
    return StoreFault::kRefused;
  }
  QFile::remove(part);
  StoreFault fault = session_.Run(QStringLiteral("VACUUM INTO ?"), {part});
  if (fault == StoreFault::kNone &&
      (!SyncPath(part) ||
       ::rename(QFile::encodeName(part).constData(), QFile::encodeName(path).constData()) != 0 ||
       !SyncPath(QFileInfo(path).absolutePath()))) {
    fault = StoreFault::kFull;
  }
  if (fault != StoreFault::kNone) {
    QFile::remove(part);
  }
  return fault;
}

std::optional<RecordStore::FileIdentity> RecordStore::IdentityOf(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
    return std::nullopt;
  }
  return FileIdentity{status.st_dev, status.st_ino};
}

StoreFault RecordStore::Prepare(Mode mode, int waitMs) const {
  if (mode == Mode::kRead) {
    return CheckVersion(session_);
  }
  // Only a store of ours, or an empty file, is turned to another way of writing.
  StoreFault fault = BringUpToDate(session_);
  if (fault == StoreFault::kNone) {
    fault = session_.Run(QStringLiteral("PRAGMA synchronous = FULL"));
  }
  if (fault != StoreFault::kNone) {
    return fault;
  }
  // SQLite does not wait here by itself when another program does the same to a new store.
  const QDeadlineTimer deadline(waitMs);
  do {
    fault = session_.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (fault != StoreFault::kLocked) {
      break;
    }
    QThread::msleep(10);
  } while (!deadline.hasExpired());
  return fault;
}

Answer<QList<StoredRow>> RecordStore::Rows(const QString& condition,
                                           const QVariantList& values) const {
  Answer<QSqlQuery> query = session_.Select(
      QStringLiteral("SELECT %1 FROM record_row WHERE %2").arg(kRowColumns, condition), values);
  Answer<QList<StoredRow>> rows{{}, query.fault};
  while (query && query.value.next()) {
    rows.value << RowOf(query.value);
  }
  if (query) {
    rows.fault = FaultOf(query.value.lastError());
  }
  return rows;
}

// Behind what the next row comes: the last number ever given, and the hash of the last row there.
Answer<ChainHead> RecordStore::End() const {
  Answer<ChainHead> head = Head();
  const Answer<QVariant> number =
      session_.Value(QStringLiteral("SELECT seq FROM sqlite_sequence WHERE name = 'record_row'"));
  head.value.number = std::max(head.value.number, number.value.toLongLong());
  if (head) {
    head.fault = number.fault;
  }
  return head;
}

std::optional<ChainHead> HeadOf(const QString& path) {
  constexpr int kPatienceMs = 100;
  RecordStore store;
  if (store.Open(path, RecordStore::Mode::kRead, kPatienceMs) != StoreFault::kNone) {
    return std::nullopt;
  }
  const Answer<ChainHead> head = store.Head();
  return head && head.value.number > 0 ? std::optional(head.value) : std::nullopt;
}

}  // namespace vexa

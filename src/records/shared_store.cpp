// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/shared_store.h"

#include <QJsonDocument>
#include <algorithm>

#include "records/postgres_options.h"

namespace vexa {
namespace {

constexpr int kBatch = 500;

// The spectra are noise: trying to press them costs time and gains nothing.
const QStringList kTable{
    QStringLiteral(
        "CREATE TABLE record_row (station text NOT NULL, number bigint NOT NULL, id text,"
        " kind text, utc bigint, time text, lot text, recipe text, sample text,"
        " operator text, verdict text, subject text, supersedes text,"
        " hash bytea NOT NULL, document text NOT NULL, numbers bytea NOT NULL,"
        " PRIMARY KEY (station, number))"),
    QStringLiteral("ALTER TABLE record_row ALTER numbers SET STORAGE EXTERNAL"),
    QStringLiteral("CREATE INDEX record_by_id ON record_row(id)"),
    QStringLiteral("CREATE INDEX record_by_time ON record_row(kind, utc, station, number)"),
    QStringLiteral("CREATE INDEX record_by_lot ON record_row(lot, utc)"),
    QStringLiteral("CREATE INDEX record_by_recipe ON record_row(recipe, utc)"),
    QStringLiteral("CREATE INDEX record_by_supersedes ON record_row(supersedes)"
                   " WHERE supersedes IS NOT NULL"),
    QStringLiteral("CREATE INDEX record_by_subject ON record_row(subject)"
                   " WHERE subject IS NOT NULL"),
    QStringLiteral("CREATE FUNCTION record_stays() RETURNS trigger LANGUAGE plpgsql AS"
                   " $$ BEGIN RAISE EXCEPTION 'a record is never changed or deleted'; END $$"),
    QStringLiteral("CREATE TRIGGER record_stays BEFORE UPDATE OR DELETE ON record_row"
                   " FOR EACH ROW EXECUTE FUNCTION record_stays()"),
    QStringLiteral("CREATE TRIGGER record_rows_stay BEFORE TRUNCATE ON record_row"
                   " FOR EACH STATEMENT EXECUTE FUNCTION record_stays()"),
    QStringLiteral("COMMENT ON TABLE record_row IS 'vexa records 1'"),
};

const QString kComment =
    QStringLiteral("SELECT obj_description(to_regclass('record_row'), 'pg_class')");

// The columns repeat what the document says; OFFSET 0 keeps it from being parsed for each of them.
const QString kInsert = QStringLiteral(
    "INSERT INTO record_row (station, number, id, kind, utc, time, lot, recipe, sample, operator,"
    " verdict, subject, supersedes, hash, document, numbers)"
    " SELECT coalesce(d ->> 'station', ''), number, d ->> 'id', d ->> 'kind', (d ->> "
    "'utc')::bigint,"
    " d ->> 'time', d ->> 'lot', d ->> 'recipe', d ->> 'sample', d ->> 'operator', d ->> 'verdict',"
    " d ->> 'subject', d ->> 'supersedes', hash, document, numbers"
    " FROM (SELECT *, document::jsonb AS d FROM (VALUES %1)"
    " AS sent(number, document, numbers, hash) OFFSET 0) AS parsed"
    " ON CONFLICT (station, number) DO NOTHING");

}  // namespace

StoreFault SharedStore::Open(const QString& connection) {
  const std::optional<QString> options = PostgresOptions(connection);
  if (!options) {
    return StoreFault::kRefused;
  }
  StoreFault fault = session_.Open(QStringLiteral("QPSQL"), {}, *options);
  if (fault == StoreFault::kNone) {
    fault = MakeTable();
  }
  if (fault != StoreFault::kNone) {
    Close();
  }
  return fault;
}

SharedStatus SharedStore::Send(const RecordStore& local,
                               const std::function<bool(const SharedStatus& status)>& goOn) const {
  SharedStatus status;
  const Answer<ChainHead> head = local.Head();
  Answer<qint64> last = head ? LastSent(local) : Answer<qint64>{0, head.fault};
  status.fault = last.fault;
  // Of another store nothing was sent.
  status.waiting = head.value.number - (last.fault == StoreFault::kOtherStore ? 0 : last.value);
  while (status.fault == StoreFault::kNone && status.waiting > 0 && goOn(status)) {
    const Answer<QList<StoredRow>> rows = local.RowsAfter(last.value, kBatch);
    if (!rows || rows.value.isEmpty()) {
      status.fault = rows.fault;
      break;
    }
    status.fault = Insert(rows.value);
    if (status.fault == StoreFault::kNone) {
      last.value = rows.value.last().number;
      status.sent += rows.value.size();
      status.waiting = std::max<qint64>(head.value.number - last.value, 0);
    }
  }
  return status;
}

Answer<QList<RecordSummary>> SharedStore::Search(const RecordQuery& query) const {
  return SearchRecords(session_, query);
}

StoreFault SharedStore::Visit(const RecordQuery& query,
                              const std::function<void(const StoredRow& row)>& visit) const {
  return VisitRows(session_, query, visit);
}

Answer<StoredRow> SharedStore::Find(const QString& id) const {
  return FindRow(session_, QStringLiteral("id"), id);
}

StoreFault SharedStore::MakeTable() const {
  Transaction transaction(session_, QStringLiteral("BEGIN"));
  if (transaction.Fault() != StoreFault::kNone) {
    return transaction.Fault();
  }
  // One station makes it, the others wait here; any fixed number would do.
  const StoreFault locked = session_.Run(QStringLiteral("SELECT pg_advisory_xact_lock(5657584)"));
  const Answer<QVariant> there =
      session_.Value(QStringLiteral("SELECT to_regclass('record_row') IS NOT NULL"));
  if (locked != StoreFault::kNone || !there) {
    return locked != StoreFault::kNone ? locked : there.fault;
  }
  if (there.value.toBool()) {
    const Answer<QVariant> comment = session_.Value(kComment);
    const bool ours = comment.value.toString() == QLatin1String("vexa records 1");
    return comment && !ours ? StoreFault::kForeign : comment.fault;
  }
  for (const QString& statement : kTable) {
    if (const StoreFault fault = session_.Run(statement); fault != StoreFault::kNone) {
      return fault;
    }
  }
  return transaction.Commit();
}

// The number of the last row of this store that the shared one has; 0 without any.
Answer<qint64> SharedStore::LastSent(const RecordStore& local) const {
  const Answer<QStringList> stations = local.Stations();
  if (!stations) {
    return {0, stations.fault};
  }
  qint64 last = 0;
  QByteArray hash;
  for (const QString& station : stations.value) {
    Answer<QSqlQuery> found =
        session_.Select(QStringLiteral("SELECT number, hash FROM record_row WHERE station = ?"
                                       " ORDER BY number DESC LIMIT 1"),
                        {station});
    if (!found) {
      return {0, found.fault};
    }
    if (found.value.next() && found.value.value(0).toLongLong() > last) {
      last = found.value.value(0).toLongLong();
      hash = found.value.value(1).toByteArray();
    }
  }
  if (last == 0) {
    return {};
  }
  const Answer<StoredRow> same = local.Find(QString::number(last));
  if (!same && same.fault != StoreFault::kMissing) {
    return {0, same.fault};
  }
  return {last, same && same.value.hash == hash ? StoreFault::kNone : StoreFault::kOtherStore};
}

StoreFault SharedStore::Insert(const QList<StoredRow>& rows) const {
  QVariantList values;
  for (const StoredRow& row : rows) {
    // Without numbers they are none, not unknown: an event has no counts.
    const QByteArray numbers = row.row.numbers.isNull() ? QByteArray("") : row.row.numbers;
    values << row.number << QString::fromUtf8(row.row.document) << numbers << row.hash;
  }
  const QString places =
      QStringList(rows.size(), QStringLiteral("(?::bigint, ?::text, ?::bytea, ?::bytea)"))
          .join(u',');
  return session_.Run(kInsert.arg(places), values);
}

}  // namespace vexa

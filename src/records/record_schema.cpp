// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_schema.h"

#include <QStringList>
#include <array>

namespace vexa {
namespace {

// What is searched for stands in the document, and so in its hash; the columns repeat it (they are
// no generated ones, as those never make a covering index). They stand before the long ones, so
// that reading them does not read those.
const QStringList kVersion1{
    QStringLiteral("CREATE TABLE record_row (number INTEGER PRIMARY KEY AUTOINCREMENT, id TEXT,"
                   " kind TEXT, utc INTEGER, time TEXT, station TEXT, lot TEXT, recipe TEXT,"
                   " sample TEXT, operator TEXT, verdict TEXT, subject TEXT, supersedes TEXT,"
                   " hash BLOB NOT NULL, document TEXT NOT NULL, numbers BLOB NOT NULL)"),
    QStringLiteral("CREATE UNIQUE INDEX by_id ON record_row(id)"),
    QStringLiteral("CREATE INDEX by_time ON record_row(kind, utc, station, number, sample, lot,"
                   " recipe, operator, verdict, id)"),
    QStringLiteral("CREATE INDEX by_lot ON record_row(lot, kind, utc, station, number, id)"),
    QStringLiteral("CREATE INDEX by_recipe ON record_row(recipe, kind, utc, station, number, id)"),
    QStringLiteral("CREATE INDEX by_supersedes ON record_row(supersedes)"
                   " WHERE supersedes IS NOT NULL"),
    QStringLiteral("CREATE INDEX by_subject ON record_row(subject) WHERE subject IS NOT NULL"),
};

// What keeps the rows as they are; made again where somebody has taken it away.
const QStringList kGuards{
    QStringLiteral("CREATE TRIGGER IF NOT EXISTS no_update BEFORE UPDATE ON record_row BEGIN"
                   " SELECT RAISE(ABORT, 'a record is never changed'); END"),
    QStringLiteral("CREATE TRIGGER IF NOT EXISTS no_delete BEFORE DELETE ON record_row BEGIN"
                   " SELECT RAISE(ABORT, 'a record is never deleted'); END"),
    // A replacing insert deletes without the trigger above.
    QStringLiteral("CREATE TRIGGER IF NOT EXISTS in_order BEFORE INSERT ON record_row"
                   " WHEN NEW.number IS NOT 1 + coalesce((SELECT seq FROM sqlite_sequence"
                   " WHERE name = 'record_row'), 0) BEGIN"
                   " SELECT RAISE(ABORT, 'a record comes behind the last'); END"),
};

const std::array kVersions{kVersion1};

// The columns that repeat the document, and each as the document has it.
constexpr std::array kRepeated{"id",     "kind",   "utc",      "time",    "station", "lot",
                               "recipe", "sample", "operator", "verdict", "subject", "supersedes"};

QString InDocument(const char* column) {
  const QString value = QStringLiteral("json_extract(document, '$.%1')").arg(QLatin1String(column));
  return QLatin1String(column) == QLatin1String("station")
             ? QStringLiteral("coalesce(%1, '')").arg(value)
             : value;
}

Answer<int> VersionOf(const SqlSession& session) {
  const Answer<QVariant> mark = session.Value(QStringLiteral("PRAGMA application_id"));
  const Answer<QVariant> version = session.Value(QStringLiteral("PRAGMA user_version"));
  const Answer<QVariant> tables =
      session.Value(QStringLiteral("SELECT count(*) FROM sqlite_schema"));
  for (const StoreFault fault : {mark.fault, version.fault, tables.fault}) {
    if (fault != StoreFault::kNone) {
      return {0, fault};
    }
  }
  const bool empty = tables.value.toInt() == 0 && mark.value.toInt() == 0;
  const bool ours = mark.value.toInt() == kStoreApplicationId &&
                    version.value.toInt() <= static_cast<int>(kVersions.size());
  return {version.value.toInt(), empty || ours ? StoreFault::kNone : StoreFault::kForeign};
}

// The three numbers of one moment: another program may just be making the store.
Answer<int> VersionAtOneMoment(const SqlSession& session) {
  const Transaction moment(session, QStringLiteral("BEGIN"));
  return moment.Fault() == StoreFault::kNone ? VersionOf(session) : Answer<int>{0, moment.Fault()};
}

}  // namespace

QString InsertStatement() {
  QStringList columns;
  QStringList values;
  for (const char* column : kRepeated) {
    columns << QLatin1String(column);
    values << InDocument(column);
  }
  return QStringLiteral(
             "INSERT INTO record_row (number, document, numbers, hash, %1)"
             " SELECT number, document, numbers, hash, %2"
             " FROM (SELECT ? AS number, ? AS document, ? AS numbers, ? AS hash)")
      .arg(columns.join(QStringLiteral(", ")), values.join(QStringLiteral(", ")));
}

QString RepeatsDocument() {
  QStringList equal;
  for (const char* column : kRepeated) {
    equal << QLatin1String(column) + QStringLiteral(" IS ") + InDocument(column);
  }
  return QStringLiteral("CASE WHEN json_valid(document) THEN %1 ELSE 0 END")
      .arg(equal.join(QStringLiteral(" AND ")));
}

StoreFault BringUpToDate(const SqlSession& session) {
  const Answer<int> now = VersionAtOneMoment(session);
  const Answer<QVariant> guards = session.Value(
      QStringLiteral("SELECT count(*) FROM sqlite_schema WHERE type = 'trigger' AND name IN"
                     " ('no_update', 'no_delete', 'in_order')"));
  if (!now || !guards) {
    return now ? guards.fault : now.fault;
  }
  if (now.value == static_cast<int>(kVersions.size()) &&
      guards.value.toInt() == static_cast<int>(kGuards.size())) {
    return StoreFault::kNone;
  }
  Transaction transaction(session, QStringLiteral("BEGIN IMMEDIATE"));
  if (transaction.Fault() != StoreFault::kNone) {
    return transaction.Fault();
  }
  const Answer<int> version = VersionOf(session);  // another program may have been quicker
  if (!version) {
    return version.fault;
  }
  QStringList statements;
  for (auto next = static_cast<std::size_t>(version.value); next < kVersions.size(); ++next) {
    statements << kVersions[next];
  }
  statements << kGuards;
  statements << QStringLiteral("PRAGMA application_id = %1").arg(kStoreApplicationId)
             << QStringLiteral("PRAGMA user_version = %1").arg(kVersions.size());
  for (const QString& statement : statements) {
    if (const StoreFault fault = session.Run(statement); fault != StoreFault::kNone) {
      return fault;
    }
  }
  return transaction.Commit();
}

StoreFault CheckVersion(const SqlSession& session) {
  const Answer<int> version = VersionAtOneMoment(session);
  if (!version) {
    return version.fault;
  }
  return version.value == static_cast<int>(kVersions.size()) ? StoreFault::kNone
                                                             : StoreFault::kForeign;
}

}  // namespace vexa

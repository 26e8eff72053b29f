// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/sql_session.h"

#include <QUuid>
#include <utility>

namespace vexa {
namespace {

// Primary result codes of SQLite (sqlite.org/rescode.html).
constexpr int kBusy = 5;
constexpr int kLockedTable = 6;
constexpr int kReadOnlyFile = 8;
constexpr int kIoError = 10;
constexpr int kCorrupt = 11;
constexpr int kFullDisk = 13;
constexpr int kCannotOpen = 14;
constexpr int kConstraint = 19;
constexpr int kNoDatabase = 26;

// Extended ones of an input/output error: the disk refused to take something.
constexpr int kIoWrite = kIoError | (3 << 8);
constexpr int kIoSync = kIoError | (4 << 8);
constexpr int kIoDirectorySync = kIoError | (5 << 8);
constexpr int kIoTruncate = kIoError | (6 << 8);
constexpr int kIoShmSize = kIoError | (19 << 8);

StoreFault SqliteFault(int code) {
  switch (code) {
    case kIoWrite:
    case kIoSync:
    case kIoDirectorySync:
    case kIoTruncate:
    case kIoShmSize:
      return StoreFault::kFull;
    default:
      break;
  }
  switch (code & 0xff) {
    case kBusy:
    case kLockedTable:
      return StoreFault::kLocked;
    case kReadOnlyFile:
    case kCannotOpen:
      return StoreFault::kReadOnly;
    case kCorrupt:
    case kNoDatabase:
      return StoreFault::kDamaged;
    case kFullDisk:
      return StoreFault::kFull;
    case kConstraint:
      return StoreFault::kRefused;
    default:
      return StoreFault::kFailed;
  }
}

// Classes of SQLSTATE (PostgreSQL, appendix A).
StoreFault PostgresFault(const QString& state) {
  if (state == QLatin1String("P0001")) {  // raised by one of our triggers
    return StoreFault::kRefused;
  }
  const QString kind = state.first(2);
  if (kind == QLatin1String("08") || kind == QLatin1String("57") || kind == QLatin1String("28")) {
    return StoreFault::kUnreachable;
  }
  if (kind == QLatin1String("53")) {
    return StoreFault::kFull;
  }
  if (kind == QLatin1String("25")) {
    return StoreFault::kReadOnly;
  }
  if (kind == QLatin1String("55") || kind == QLatin1String("40")) {
    return StoreFault::kLocked;
  }
  if (kind == QLatin1String("23")) {
    return StoreFault::kRefused;
  }
  return StoreFault::kFailed;
}

}  // namespace

StoreFault FaultOf(const QSqlError& error) {
  if (error.type() == QSqlError::NoError) {
    return StoreFault::kNone;
  }
  const QString code = error.nativeErrorCode();
  if (code.size() == 5) {
    return PostgresFault(code);
  }
  bool isNumber = false;
  const int number = code.toInt(&isNumber);
  // A lost server gives no code at all.
  return isNumber ? SqliteFault(number) : StoreFault::kUnreachable;
}

StoreFault SqlSession::Open(const QString& driver, const QString& database,
                            const QString& options) {
  Close();
  name_ = QUuid::createUuid().toString();
  QSqlDatabase connection = QSqlDatabase::addDatabase(driver, name_);
  connection.setDatabaseName(database);
  connection.setConnectOptions(options);
  if (connection.open()) {
    return StoreFault::kNone;
  }
  const StoreFault fault = FaultOf(connection.lastError());
  connection = {};
  Close();
  return fault;
}

void SqlSession::Close() {
  if (IsOpen()) {
    QSqlDatabase::removeDatabase(std::exchange(name_, {}));
  }
}

StoreFault SqlSession::Run(const QString& sql, const QVariantList& values) const {
  return Select(sql, values).fault;
}

Answer<QSqlQuery> SqlSession::Select(const QString& sql, const QVariantList& values) const {
  QSqlQuery query(QSqlDatabase::database(name_, false));
  query.setForwardOnly(true);
  bool done = false;
  if (values.isEmpty()) {
    done = query.exec(sql);
  } else if (query.prepare(sql)) {
    for (const QVariant& value : values) {
      query.addBindValue(value);
    }
    done = query.exec();
  }
  const StoreFault fault = done ? StoreFault::kNone : FaultOf(query.lastError());
  return {std::move(query), fault};
}

Answer<QVariant> SqlSession::Value(const QString& sql, const QVariantList& values) const {
  Answer<QSqlQuery> query = Select(sql, values);
  if (!query) {
    return {{}, query.fault};
  }
  QVariant value;
  if (query.value.next()) {
    value = query.value.value(0);
  }
  return {value, FaultOf(query.value.lastError())};
}

Transaction::~Transaction() {
  if (fault_ == StoreFault::kNone && !committed_) {
    (void)session_.Run(QStringLiteral("ROLLBACK"));
  }
}

StoreFault Transaction::Commit() {
  const StoreFault fault = session_.Run(QStringLiteral("COMMIT"));
  committed_ = fault == StoreFault::kNone;
  return fault;
}

}  // namespace vexa

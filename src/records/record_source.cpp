// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_source.h"

namespace vexa {

Answer<StoredRow> FindRow(const SqlSession& session, const QString& column, const QVariant& value) {
  Answer<QSqlQuery> query = session.Select(
      QStringLiteral("SELECT %1 FROM record_row WHERE %2 = ?").arg(kRowColumns, column), {value});
  if (!query) {
    return {{}, query.fault};
  }
  if (query.value.next()) {
    return {RowOf(query.value), StoreFault::kNone};
  }
  const StoreFault fault = FaultOf(query.value.lastError());
  return {{}, fault == StoreFault::kNone ? StoreFault::kMissing : fault};
}

StoredRow RowOf(const QSqlQuery& query) {
  return {
      query.value(0).toLongLong(),
      {query.value(1).toString(), query.value(2).toString().toUtf8(), query.value(3).toByteArray()},
      query.value(4).toByteArray()};
}

}  // namespace vexa

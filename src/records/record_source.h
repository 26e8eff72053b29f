// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "records/record_search.h"
#include "records/row.h"

namespace vexa {

/// Where records are looked for: the store of a program directory, or the one that stations share.
class RecordSource {
 public:
  RecordSource() = default;
  virtual ~RecordSource() = default;
  RecordSource(const RecordSource&) = delete;
  RecordSource& operator=(const RecordSource&) = delete;

  [[nodiscard]] virtual Answer<QList<RecordSummary>> Search(const RecordQuery& query) const = 0;

  /// Hands over the whole rows of the samples that the query finds, the newest first.
  [[nodiscard]] virtual StoreFault Visit(
      const RecordQuery& query, const std::function<void(const StoredRow& row)>& visit) const = 0;

  /// The row by its id; kMissing when there is none.
  [[nodiscard]] virtual Answer<StoredRow> Find(const QString& id) const = 0;
};

/// The row whose `column` has this value, by its session.
[[nodiscard]] Answer<StoredRow> FindRow(const SqlSession& session, const QString& column,
                                        const QVariant& value);

/// Hands over the rows of the samples that the query finds, by their session, the newest first.
[[nodiscard]] StoreFault VisitRows(const SqlSession& session, const RecordQuery& query,
                                   const std::function<void(const StoredRow& row)>& visit);

/// The columns of a whole row, and the row of a query of them that stands on one.
inline const QString kRowColumns = QStringLiteral("number, id, document, numbers, hash");
[[nodiscard]] StoredRow RowOf(const QSqlQuery& query);

}  // namespace vexa

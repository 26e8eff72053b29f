// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_search.h"

#include <QStringList>

#include "records/record_source.h"

namespace vexa {
namespace {

QString Pattern(QString part) {
  for (const QChar wild : {u'\\', u'%', u'_'}) {
    part.replace(wild, QStringLiteral("\\") + wild);
  }
  return u'%' + part.toLower() + u'%';
}

/// Conditions and the values that they bind.
class Conditions {
 public:
  void Add(const QString& condition, const QVariantList& values) {
    conditions_ << condition;
    values_ << values;
  }
  [[nodiscard]] QString Text() const { return conditions_.join(QStringLiteral(" AND ")); }
  [[nodiscard]] const QVariantList& Values() const { return values_; }

 private:
  QStringList conditions_;
  QVariantList values_;
};

Conditions ConditionsOf(const RecordQuery& query) {
  Conditions conditions;
  conditions.Add(QStringLiteral("kind = 'sample'"), {});
  if (query.id) {
    conditions.Add(QStringLiteral("id = ?"), {*query.id});
  }
  if (query.lot) {
    conditions.Add(QStringLiteral("lot = ?"), {*query.lot});
  }
  if (query.recipe) {
    conditions.Add(QStringLiteral("recipe = ?"), {*query.recipe});
  }
  if (query.operatorName) {
    conditions.Add(QStringLiteral("operator = ?"), {*query.operatorName});
  }
  if (query.verdict) {
    conditions.Add(QStringLiteral("verdict = ?"), {VerdictWord(*query.verdict)});
  }
  if (query.from.isValid()) {
    conditions.Add(QStringLiteral("utc >= ?"), {query.from.toMSecsSinceEpoch()});
  }
  if (query.to.isValid()) {
    conditions.Add(QStringLiteral("utc < ?"), {query.to.toMSecsSinceEpoch()});
  }
  if (query.after) {
    conditions.Add(QStringLiteral("(utc, station, number) < (?, ?, ?)"),
                   {query.after->utcMs, query.after->station, query.after->number});
  }
  if (!query.samplePart.isEmpty()) {
    conditions.Add(QStringLiteral("lower(sample) LIKE ? ESCAPE '\\'"), {Pattern(query.samplePart)});
  }
  if (!query.withSuperseded && !query.id) {
    conditions.Add(
        QStringLiteral("NOT EXISTS (SELECT 1 FROM record_row s WHERE s.supersedes = k.id)"), {});
  }
  return conditions;
}

// The inner search finds its rows in an index alone; the outer one touches those of the page.
Answer<QSqlQuery> Find(const SqlSession& session, const RecordQuery& query,
                       const QString& columns) {
  const Conditions conditions = ConditionsOf(query);
  const QString sql = QStringLiteral(
                          "SELECT %1 FROM (SELECT station, number FROM record_row k WHERE %2"
                          " ORDER BY utc DESC, station DESC, number DESC LIMIT ?) p"
                          " JOIN record_row r ON r.number = p.number AND r.station = p.station"
                          " ORDER BY r.utc DESC, r.station DESC, r.number DESC")
                          .arg(columns, conditions.Text());
  return session.Select(sql, QVariantList(conditions.Values()) << query.limit);
}

}  // namespace

Answer<QList<RecordSummary>> SearchRecords(const SqlSession& session, const RecordQuery& query) {
  Answer<QSqlQuery> rows =
      Find(session, query,
           QStringLiteral("r.id, r.number, r.utc, r.time, r.station, r.lot, r.recipe, r.sample,"
                          " r.operator, r.verdict, coalesce(r.supersedes, (SELECT e.supersedes"
                          " FROM record_row e WHERE e.subject = r.id AND e.supersedes IS NOT NULL"
                          " ORDER BY e.number DESC LIMIT 1))"));
  if (!rows) {
    return {{}, rows.fault};
  }
  Answer<QList<RecordSummary>> found;
  while (rows.value.next()) {
    const auto text = [&rows](int column) { return rows.value.value(column).toString(); };
    found.value.append({text(0), rows.value.value(1).toLongLong(), rows.value.value(2).toLongLong(),
                        text(3), text(4), text(5), text(6), text(7), text(8), text(9), text(10)});
  }
  found.fault = FaultOf(rows.value.lastError());
  return found;
}

StoreFault VisitRows(const SqlSession& session, const RecordQuery& query,
                     const std::function<void(const StoredRow& row)>& visit) {
  Answer<QSqlQuery> rows =
      Find(session, query, QStringLiteral("r.number, r.id, r.document, r.numbers, r.hash"));
  while (rows && rows.value.next()) {
    visit(RowOf(rows.value));
  }
  return rows ? FaultOf(rows.value.lastError()) : rows.fault;
}

}  // namespace vexa

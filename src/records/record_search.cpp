// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_search.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <utility>

#include "records/event_types.h"
#include "records/record_source.h"
#include "records/result_json.h"

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
  // An empty text is what a row does not have.
  const auto addText = [&conditions](const char* column, const std::optional<QString>& text) {
    if (text && text->isEmpty()) {
      conditions.Add(QLatin1String(column) + QStringLiteral(" IS NULL"), {});
    } else if (text) {
      conditions.Add(QLatin1String(column) + QStringLiteral(" = ?"), {*text});
    }
  };
  addText("lot", query.lot);
  addText("recipe", query.recipe);
  addText("operator", query.operatorName);
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
  if (query.newerThan) {
    conditions.Add(QStringLiteral("(utc, station, number) > (?, ?, ?)"),
                   {query.newerThan->utcMs, query.newerThan->station, query.newerThan->number});
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

// Whose place the sample has taken by the document of its own row, or of a later event.
void TakePlace(const QJsonDocument& document, RecordSummary& summary) {
  summary.supersedes = document[QStringLiteral("supersedes")].toString();
  summary.reason = document[QStringLiteral("reason")].toString();
}

// What a table shows of the results, as the document of a row has it.
void TakeResults(const QJsonDocument& document, RecordSummary& summary) {
  TakePlace(document, summary);
  summary.repeat = document[QStringLiteral("repeat")].toInt(1);
  summary.repeats = document[QStringLiteral("repeats")].toInt(1);
  summary.colour = ColourOf(document[QStringLiteral("colour")].toObject());
  if (const QJsonValue thickness = document[QStringLiteral("thickness")]; thickness.isObject()) {
    const ThicknessResult result = ThicknessOf(thickness.toObject());
    summary.thicknessNm = result.thicknessNm;
    summary.physical = result.physical;
    for (const auto& doubt : thickness[QStringLiteral("doubts")].toArray()) {
      summary.doubts << doubt.toString();
    }
  }
}

// The check that the event says holds the verdict on its subject.
QString HoldingCheck(const QJsonDocument& event) {
  return event[QStringLiteral("type")] == event_type::kVerdictHeld
             ? event[QStringLiteral("data")][QStringLiteral("check")].toString()
             : QString();
}

Answer<bool> IsReleased(const SqlSession& session, const QString& check) {
  Answer<QSqlQuery> rows = session.Select(
      QStringLiteral("SELECT document FROM record_row WHERE kind = 'event' AND subject = ?"),
      {check});
  Answer<bool> released{false, rows.fault};
  while (rows && rows.value.next()) {
    const auto event = QJsonDocument::fromJson(rows.value.value(0).toString().toUtf8());
    released.value |= event[QStringLiteral("type")] == event_type::kDailyRelease;
  }
  return released;
}

// Frees the verdicts whose check was released since.
StoreFault TakeReleases(const SqlSession& session, QList<RecordSummary>& found) {
  QHash<QString, bool> released;
  for (RecordSummary& summary : found) {
    if (summary.heldBy.isEmpty()) {
      continue;
    }
    if (!released.contains(summary.heldBy)) {
      const Answer<bool> answer = IsReleased(session, summary.heldBy);
      if (!answer) {
        return answer.fault;
      }
      released.insert(summary.heldBy, answer.value);
    }
    if (released.value(summary.heldBy)) {
      summary.heldBy.clear();
    }
  }
  return StoreFault::kNone;
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
           QStringLiteral(
               "r.id, r.number, r.utc, r.time, r.station, r.lot, r.recipe, r.sample, r.operator,"
               " r.verdict, r.document, (SELECT e.document FROM record_row e WHERE"
               " e.subject = r.id AND e.supersedes IS NOT NULL ORDER BY e.number DESC LIMIT 1),"
               " (SELECT e.document FROM record_row e WHERE"
               " e.subject = r.id AND e.supersedes IS NULL ORDER BY e.number DESC LIMIT 1)"));
  if (!rows) {
    return {{}, rows.fault};
  }
  Answer<QList<RecordSummary>> found;
  while (rows.value.next()) {
    const auto text = [&rows](int column) { return rows.value.value(column).toString(); };
    RecordSummary summary;
    summary.id = text(0);
    summary.number = rows.value.value(1).toLongLong();
    summary.utcMs = rows.value.value(2).toLongLong();
    summary.time = text(3);
    summary.station = text(4);
    summary.lot = text(5);
    summary.recipe = text(6);
    summary.sampleNumber = text(7);
    summary.operatorName = text(8);
    summary.verdict = text(9);
    TakeResults(QJsonDocument::fromJson(text(10).toUtf8()), summary);
    if (summary.supersedes.isEmpty()) {
      TakePlace(QJsonDocument::fromJson(text(11).toUtf8()), summary);
    }
    summary.heldBy = HoldingCheck(QJsonDocument::fromJson(text(12).toUtf8()));
    found.value.append(std::move(summary));
  }
  found.fault = FaultOf(rows.value.lastError());
  if (found) {
    found.fault = TakeReleases(session, found.value);
  }
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include <limits>

#include "base/date_text.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/program_settings.h"
#include "cli/records_actions.h"
#include "cli/text_columns.h"

namespace vexa::cli {
namespace {

using namespace records_option;

/// A moment, or a whole day.
struct Date {
  QDateTime time;
  bool day = false;
};

std::optional<Date> ParseDate(const QString& text) {
  if (const QDate day = QDate::fromString(text, Qt::ISODate); day.isValid() && text.size() == 10) {
    return Date{day.startOfDay(), true};
  }
  if (const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs); time.isValid()) {
    return Date{time, false};
  }
  if (const std::optional<QDateTime> time = ParseDateTime(text); time && time->isValid()) {
    return Date{*time, !text.contains(u':')};
  }
  return std::nullopt;
}

// Takes the option over; false, with a complaint, when it is no date.
bool TakeDate(const QCommandLineParser& parser, const QString& name, bool end, QDateTime& time) {
  if (!parser.isSet(name)) {
    return true;
  }
  const std::optional<Date> date = ParseDate(parser.value(name));
  if (!date) {
    Complain(
        Text::tr("--%1 は日付 yyyy-mm-dd または日時です：\"%2\"").arg(name, parser.value(name)));
    return false;
  }
  time = !end ? date->time : date->day ? date->time.addDays(1) : date->time.addMSecs(1);
  return true;
}

bool TakeVerdict(const QCommandLineParser& parser, std::optional<Verdict>& verdict) {
  if (!parser.isSet(kVerdict)) {
    return true;
  }
  for (const Verdict known : {Verdict::kOk, Verdict::kNotGood, Verdict::kNone}) {
    if (parser.value(kVerdict) == VerdictWord(known)) {
      verdict = known;
      return true;
    }
  }
  Complain(Text::tr("--%1 は OK、NG、none のいずれかです：\"%2\"")
               .arg(kVerdict, parser.value(kVerdict)));
  return false;
}

std::optional<RecordQuery> QueryOf(const QCommandLineParser& parser) {
  RecordQuery query;
  const auto take = [&parser](const QString& name, std::optional<QString>& value) {
    if (parser.isSet(name)) {
      value = parser.value(name);
    }
  };
  take(kLot, query.lot);
  take(kRecipe, query.recipe);
  take(kOperator, query.operatorName);
  query.samplePart = parser.value(kSample);
  query.withSuperseded = parser.isSet(kAll);
  const std::optional<int> limit =
      IntegerOption(parser, kLimit, query.limit, 1, std::numeric_limits<int>::max());
  if (!limit || !TakeDate(parser, kFrom, false, query.from) ||
      !TakeDate(parser, kTo, true, query.to) || !TakeVerdict(parser, query.verdict)) {
    return std::nullopt;
  }
  query.limit = *limit;
  return query;
}

QJsonObject SummaryJson(const RecordSummary& record) {
  QJsonObject object{{QStringLiteral("id"), record.id},
                     {QStringLiteral("number"), record.number},
                     {QStringLiteral("time"), record.time},
                     {QStringLiteral("station"), record.station},
                     {QStringLiteral("lot"), record.lot},
                     {QStringLiteral("recipe"), record.recipe},
                     {QStringLiteral("sample"), record.sampleNumber},
                     {QStringLiteral("operator"), record.operatorName},
                     {QStringLiteral("verdict"), record.verdict},
                     {QStringLiteral("supersedes"),
                      record.supersedes.isEmpty() ? QJsonValue() : QJsonValue(record.supersedes)}};
  if (record.repeats > 1) {
    object[QStringLiteral("repeat")] = record.repeat;
    object[QStringLiteral("repeats")] = record.repeats;
  }
  if (!record.heldBy.isEmpty()) {
    object[QStringLiteral("held")] = true;
  }
  return object;
}

}  // namespace

int ListRecords(const QCommandLineParser& parser, const QStringList& /*arguments*/) {
  const std::optional<RecordQuery> query = QueryOf(parser);
  if (!query) {
    return kUsageError;
  }
  RecordStore store;
  if (!OpenStore(parser, RecordStore::Mode::kRead, store)) {
    return kFailed;
  }
  const Answer<QList<RecordSummary>> found = store.Search(*query);
  if (!found) {
    return ComplainOf(StorePath(parser), found.fault);
  }
  if (parser.isSet(option::kJson)) {
    QJsonArray records;
    for (const RecordSummary& record : found.value) {
      records.append(SummaryJson(record));
    }
    PrintJson({{QStringLiteral("records"), records}});
    return kDone;
  }
  QList<QStringList> rows{{QStringLiteral("number"), QStringLiteral("time"), QStringLiteral("id"),
                           QStringLiteral("verdict"), QStringLiteral("lot"),
                           QStringLiteral("sample"), QStringLiteral("repeat"),
                           QStringLiteral("operator")}};
  for (const RecordSummary& record : found.value) {
    rows << QStringList{QString::number(record.number),
                        record.time,
                        record.id,
                        VerdictText(record),
                        record.lot,
                        record.sampleNumber,
                        RepeatText(record.repeat, record.repeats),
                        record.operatorName};
  }
  Print(TextColumns(rows));
  return kDone;
}

}  // namespace vexa::cli

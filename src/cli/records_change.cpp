// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/translation.h"
#include "cli/program_settings.h"
#include "cli/records_actions.h"
#include "records/record_builder.h"
#include "records/supersede.h"
#include "records/whole_record.h"

namespace vexa::cli {
namespace {

using namespace records_option;

// The rows of the valid slots of a data file; nothing after a complaint.
std::optional<QList<Row>> RowsOfFile(const QString& path, const RecordContext& context,
                                     const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  const Settings settings = LoadSettings(parser, messages);
  Session session(settings.programDirectory);
  session.TakeSettings(settings);
  if (!LoadDataFile(path, session, messages)) {
    return std::nullopt;
  }
  const VEXATYPE& state = session.State();
  QList<Row> rows{ToRow(SettingsOf(state, context.station))};
  for (const MeasurementSlot& slot : state.measurementSlots) {
    if (slot.valid) {
      SampleRecord sample = ImportedSampleOf(state, slot, path, context);
      sample.settingsId = rows.first().id;
      rows << ToRow(sample);
    }
  }
  return rows;
}

}  // namespace

int ImportFiles(const QCommandLineParser& parser, const QStringList& arguments) {
  const std::optional<RecordSettings> settings = TakeRecordSettings(parser);
  RecordStore store;
  if (!settings || !OpenStore(parser, RecordStore::Mode::kWrite, store)) {
    return kFailed;
  }
  RecordContext context;
  context.station = settings->station;
  context.lot = parser.value(kLot);
  context.operatorName = parser.value(kOperator);
  qsizetype imported = 0;
  qsizetype known = 0;
  ExitStatus status = kDone;
  for (const QString& path : arguments) {
    const std::optional<QList<Row>> rows = RowsOfFile(path, context, parser);
    if (!rows) {
      status = kFailed;
      continue;
    }
    const Answer<ChainHead> before = store.Head();
    const Answer<QList<qint64>> numbers = store.Append(*rows);
    if (!before || !numbers) {
      return ComplainOf(StorePath(parser), before ? numbers.fault : before.fault);
    }
    for (const qint64 number : numbers.value.sliced(1)) {
      (number > before.value.number ? imported : known) += 1;
    }
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("imported"), imported}, {QStringLiteral("known"), known}});
  } else {
    Print(Text::tr("%1 imported, %2 already there\n").arg(imported).arg(known));
  }
  return status;
}

int SupersedeRecord(const QCommandLineParser& parser, const QStringList& arguments) {
  if (!parser.isSet(kBy) || parser.value(kReason).trimmed().isEmpty()) {
    Complain(Text::tr("records supersede には --by と --reason が必要です"));
    return kUsageError;
  }
  const std::optional<RecordSettings> settings = TakeRecordSettings(parser);
  RecordStore store;
  // A store is not made for this.
  if (!settings || !OpenStore(parser, RecordStore::Mode::kRead, store) ||
      !OpenStore(parser, RecordStore::Mode::kWrite, store)) {
    return kFailed;
  }
  EventRecord decision;
  decision.reason = parser.value(kReason);
  decision.operatorName = parser.value(kOperator);
  decision.station = settings->station;
  const StoreFault fault = Supersede(store, arguments.first(), parser.value(kBy), decision);
  if (fault == StoreFault::kRefused) {
    Complain(Text::tr("records：%1 か %2 は差し替え済みか、両方が同じものです")
                 .arg(arguments.first(), parser.value(kBy)));
    return kFailed;
  }
  if (fault != StoreFault::kNone) {
    return ComplainOf(QStringLiteral("samples %1, %2").arg(arguments.first(), parser.value(kBy)),
                      fault);
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("superseded"), arguments.first()},
               {QStringLiteral("by"), parser.value(kBy)}});
  }
  return kDone;
}

QString DamageText(ChainCheck::Damage damage) {
  return damage == ChainCheck::Damage::kMissing ? Text::tr("ありません")
         : damage == ChainCheck::Damage::kUnreadable
             ? Text::tr("読めません")
             : Text::tr("変更されたか、外部から入れられました");
}

int VerifyStore(const QCommandLineParser& parser, const QStringList& /*arguments*/) {
  RecordStore store;
  if (!OpenStore(parser, RecordStore::Mode::kRead, store)) {
    return kFailed;
  }
  const Answer<ChainCheck> check = store.Verify();
  if (!check) {
    return ComplainOf(StorePath(parser), check.fault);
  }
  const bool intact = check.value.damage == ChainCheck::Damage::kNone;
  const QString head = QString::fromLatin1(check.value.head.hash.toHex());
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("rows"), check.value.rows},
               {QStringLiteral("intact"), intact},
               {QStringLiteral("firstDamaged"),
                intact ? QJsonValue() : QJsonValue(check.value.firstDamaged)},
               {QStringLiteral("head"), head}});
  } else {
    Print(Text::tr("%1 rows, head %2\n").arg(check.value.rows).arg(head));
  }
  if (!intact) {
    Complain(Text::tr("records：行 %1 が%2")
                 .arg(check.value.firstDamaged)
                 .arg(DamageText(check.value.damage)));
  }
  return intact ? kDone : kFailed;
}

int BackUpStore(const QCommandLineParser& parser, const QStringList& arguments) {
  RecordStore store;
  if (!OpenStore(parser, RecordStore::Mode::kRead, store)) {
    return kFailed;
  }
  const StoreFault fault = store.Backup(arguments.first());
  if (fault != StoreFault::kNone) {
    return ComplainOf(arguments.first(), fault);
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("file"), arguments.first()}});
  }
  return kDone;
}

}  // namespace vexa::cli

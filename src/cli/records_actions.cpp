// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/records_actions.h"

#include "base/translation.h"
#include "cli/program_settings.h"
#include "records/store_fault.h"

namespace vexa::cli {

ExitStatus ComplainOf(const QString& what, StoreFault fault) {
  Complain(Text::tr("records：%1：%2").arg(what, StoreFaultText(fault)));
  return kFailed;
}

QString VerdictText(const RecordSummary& record) {
  return record.heldBy.isEmpty() ? record.verdict : record.verdict + QStringLiteral(" (held)");
}

QString RepeatText(int repeat, int repeats) {
  return repeats > 1 ? QStringLiteral("%1/%2").arg(repeat).arg(repeats) : QStringLiteral("-");
}

QString ProgramDirectory(const QCommandLineParser& parser) {
  return parser.isSet(option::kDir) ? parser.value(option::kDir) : QStringLiteral(".");
}

QString StorePath(const QCommandLineParser& parser) {
  return parser.isSet(records_option::kStore) ? parser.value(records_option::kStore)
                                              : RecordStorePath(ProgramDirectory(parser));
}

bool OpenStore(const QCommandLineParser& parser, RecordStore::Mode mode, RecordStore& store) {
  const QString path = StorePath(parser);
  const StoreFault fault = store.Open(path, mode);
  if (fault != StoreFault::kNone) {
    (void)ComplainOf(path, fault);
  }
  return fault == StoreFault::kNone;
}

std::optional<RecordSettings> TakeRecordSettings(const QCommandLineParser& parser) {
  std::optional<RecordSettings> settings = ReadRecordSettings(ProgramDirectory(parser));
  if (!settings) {
    Complain(Text::tr("records：records.json を読み込めません"));
  }
  return settings;
}

}  // namespace vexa::cli

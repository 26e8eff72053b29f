// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/records_actions.h"

#include "cli/program_settings.h"

namespace vexa::cli {

QString FaultText(StoreFault fault) {
  switch (fault) {
    case StoreFault::kNone:
      break;
    case StoreFault::kFull:
      return QStringLiteral("the disk is full");
    case StoreFault::kLocked:
      return QStringLiteral("another program holds it");
    case StoreFault::kReadOnly:
      return QStringLiteral("it cannot be opened for this, or is read-only");
    case StoreFault::kDamaged:
      return QStringLiteral("it is damaged, or no record store");
    case StoreFault::kMissing:
      return QStringLiteral("there is none");
    case StoreFault::kForeign:
      return QStringLiteral("it is no record store, or one of a newer program");
    case StoreFault::kRefused:
      return QStringLiteral("the store refuses it");
    case StoreFault::kUnreachable:
      return QStringLiteral("the server cannot be reached");
    case StoreFault::kOtherStore:
      return QStringLiteral("it holds rows of another store under this station's name");
    case StoreFault::kFailed:
      return QStringLiteral("failed");
  }
  return QStringLiteral("done");
}

ExitStatus ComplainOf(const QString& what, StoreFault fault) {
  Complain(QStringLiteral("records: %1: %2").arg(what, FaultText(fault)));
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
    Complain(QStringLiteral("records: records.json cannot be read"));
  }
  return settings;
}

}  // namespace vexa::cli

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/translation.h"
#include "cli/program_settings.h"
#include "cli/records_actions.h"
#include "records/shared_store.h"

namespace vexa::cli {

int SyncStore(const QCommandLineParser& parser, const QStringList& /*arguments*/) {
  const std::optional<RecordSettings> settings = TakeRecordSettings(parser);
  if (!settings) {
    return kFailed;
  }
  const QString connection =
      parser.isSet(records_option::kTo) ? parser.value(records_option::kTo) : settings->shared;
  if (connection.isEmpty()) {
    Complain(QStringLiteral("records: no shared store: give --to, or \"shared\" in records.json"));
    return kUsageError;
  }
  RecordStore local;
  if (!OpenStore(parser, RecordStore::Mode::kRead, local)) {
    return kFailed;
  }
  SharedStore shared;
  const StoreFault opened = shared.Open(connection);
  if (opened == StoreFault::kRefused) {
    Complain(QStringLiteral("records: \"%1\" is no PostgreSQL service or URI without a password")
                 .arg(parser.isSet(records_option::kTo) ? QStringLiteral("--to")
                                                        : QStringLiteral("shared")));
    return kUsageError;
  }
  if (opened != StoreFault::kNone) {
    return ComplainOf(QStringLiteral("shared store"), opened);
  }
  const SharedStatus status =
      shared.Send(local, [](const SharedStatus& /*soFar*/) { return true; });
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("sent"), status.sent}, {QStringLiteral("waiting"), status.waiting}});
  } else {
    Print(Text::tr("%1 sent, %2 waiting\n").arg(status.sent).arg(status.waiting));
  }
  return status.fault == StoreFault::kNone
             ? kDone
             : ComplainOf(QStringLiteral("shared store"), status.fault);
}

}  // namespace vexa::cli

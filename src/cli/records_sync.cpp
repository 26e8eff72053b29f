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
    Complain(
        Text::tr("records：共有の記録がありません。--to または records.json の \"shared\" "
                 "で指定してください"));
    return kUsageError;
  }
  RecordStore local;
  if (!OpenStore(parser, RecordStore::Mode::kRead, local)) {
    return kFailed;
  }
  SharedStore shared;
  const StoreFault opened = shared.Open(connection);
  if (opened == StoreFault::kRefused) {
    Complain(
        Text::tr(
            "records：\"%1\" は、パスワードのない PostgreSQL のサービスまたは URI ではありません")
            .arg(parser.isSet(records_option::kTo) ? QStringLiteral("--to")
                                                   : QStringLiteral("shared")));
    return kUsageError;
  }
  if (opened != StoreFault::kNone) {
    return ComplainOf(Text::tr("共有の記録"), opened);
  }
  const SharedStatus status =
      shared.Send(local, [](const SharedStatus& /*soFar*/) { return true; });
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("sent"), status.sent}, {QStringLiteral("waiting"), status.waiting}});
  } else {
    Print(Text::tr("%1 sent, %2 waiting\n").arg(status.sent).arg(status.waiting));
  }
  return status.fault == StoreFault::kNone ? kDone
                                           : ComplainOf(Text::tr("共有の記録"), status.fault);
}

}  // namespace vexa::cli

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <optional>

#include "cli/console.h"
#include "records/record_settings.h"
#include "records/record_store.h"

namespace vexa::cli {

/// Options of the actions of `records`.
namespace records_option {
inline const QString kStore = QStringLiteral("store");
inline const QString kLot = QStringLiteral("lot");
inline const QString kRecipe = QStringLiteral("recipe");
inline const QString kSample = QStringLiteral("sample");
inline const QString kOperator = QStringLiteral("operator");
inline const QString kFrom = QStringLiteral("from");
inline const QString kTo = QStringLiteral("to");
inline const QString kVerdict = QStringLiteral("verdict");
inline const QString kLimit = QStringLiteral("limit");
inline const QString kAll = QStringLiteral("all");
inline const QString kEnv = QStringLiteral("env");
inline const QString kBy = QStringLiteral("by");
inline const QString kReason = QStringLiteral("reason");
}  // namespace records_option

// Each action takes the arguments behind its name and returns the exit status.
int ListRecords(const QCommandLineParser& parser, const QStringList& arguments);
int ShowRecord(const QCommandLineParser& parser, const QStringList& arguments);
int EvaluateRecords(const QCommandLineParser& parser, const QStringList& arguments);
int ExportFiles(const QCommandLineParser& parser, const QStringList& arguments);
int ImportFiles(const QCommandLineParser& parser, const QStringList& arguments);
int SupersedeRecord(const QCommandLineParser& parser, const QStringList& arguments);
int VerifyStore(const QCommandLineParser& parser, const QStringList& arguments);
int SyncStore(const QCommandLineParser& parser, const QStringList& arguments);
int BackUpStore(const QCommandLineParser& parser, const QStringList& arguments);

/// Complains "records: WHAT: FAULT"; the exit status of a failure.
ExitStatus ComplainOf(const QString& what, StoreFault fault);

/// The verdict; "OK (held)" while a daily check holds it.
[[nodiscard]] QString VerdictText(const RecordSummary& record);

/// "1/3"; a dash when each lens is measured once.
[[nodiscard]] QString RepeatText(int repeat, int repeats);

[[nodiscard]] QString ProgramDirectory(const QCommandLineParser& parser);
[[nodiscard]] QString StorePath(const QCommandLineParser& parser);

/// Opens the store of the options; false after a complaint.
[[nodiscard]] bool OpenStore(const QCommandLineParser& parser, RecordStore::Mode mode,
                             RecordStore& store);

/// `records.json` of the program directory; nothing after a complaint.
[[nodiscard]] std::optional<RecordSettings> TakeRecordSettings(const QCommandLineParser& parser);

}  // namespace vexa::cli

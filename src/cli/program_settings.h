// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <optional>

#include "cli/console.h"
#include "measurement/session.h"

namespace vexa::cli {

/// Options of every command, and those of several.
namespace option {
inline const QString kJson = QStringLiteral("json");
inline const QString kDir = QStringLiteral("dir");
inline const QString kLanguage = QStringLiteral("language");
inline const QString kNo = QStringLiteral("no");
inline const QString kOut = QStringLiteral("out");
inline const QString kReferenceReflectance = QStringLiteral("reference-reflectance");
inline const QString kShift = QStringLiteral("shift");
inline const QString kStandard = QStringLiteral("standard");
}  // namespace option

/// The settings of the program directory, as the window has it after its start.
/// Messages of the files go to `messages`.
[[nodiscard]] Settings LoadSettings(const QCommandLineParser& parser, MessageService& messages);

/// Reads a data file into the slots and evaluates them, as the window does. False, after messages
/// and a complaint, when it cannot be read or a question is refused.
[[nodiscard]] bool LoadDataFile(const QString& path, Session& session, MessageService& messages);

void DeclareReferenceReflectance(QCommandLineParser& parser);

/// Takes over the reference reflectance of its option, a number of percent or a *.ref file; kDone,
/// or the exit status after a complaint.
[[nodiscard]] ExitStatus TakeReferenceReflectance(const QCommandLineParser& parser,
                                                  Settings& settings);

}  // namespace vexa::cli

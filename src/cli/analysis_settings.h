// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <optional>

#include "base/message.h"
#include "cli/console.h"
#include "measurement/vexatype.h"
#include "standards/standard_file.h"

namespace vexa::cli {

/// Options that change how a data file is analysed, each in the place of what the environment says.
void DeclareAnalysisOptions(QCommandLineParser& parser);

/// Takes the options over into a state that has its settings; kDone, or the exit status after a
/// complaint. The options are checked before a file is read.
[[nodiscard]] ExitStatus TakeAnalysisOptions(const QCommandLineParser& parser, Settings& settings,
                                             MessageService& messages);

/// Takes over the file of --env; false after a complaint.
[[nodiscard]] bool TakeEnvironment(const QCommandLineParser& parser, Settings& settings,
                                   MessageService& messages);

/// The contents of a standard file; nothing after a complaint.
[[nodiscard]] std::optional<StandardContents> ReadStandard(const QString& path,
                                                           MessageService& messages);

/// Takes over the file of --standard; false after a complaint.
[[nodiscard]] bool TakeStandard(const QCommandLineParser& parser, Settings& settings,
                                MessageService& messages);

}  // namespace vexa::cli

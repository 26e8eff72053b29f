// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "base/message.h"
#include "measurement/session.h"
#include "standards/standard_file.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// What a standard file of the state would hold.
[[nodiscard]] StandardContents ContentsOf(const Settings& state);

/// A standard file and its full path.
struct StandardFile {
  QString path;
  StandardContents contents;
};

/// Asks for a standard file and reads it whole. Nothing when cancelled, and, shown, when it cannot
/// be read.
[[nodiscard]] QCoro::Task<std::optional<StandardFile>> LoadStandardFile(MessageService& messages,
                                                                        FileDialogs& dialogs);

/// Asks for a name under the filter and writes the standards. The path; nothing when cancelled,
/// and, shown, when it cannot be written.
[[nodiscard]] QCoro::Task<std::optional<QString>> SaveStandardFile(StandardContents contents,
                                                                   QString filter,
                                                                   MessageService& messages,
                                                                   FileDialogs& dialogs);

/// The question at the end of the program when the standards were changed and their file has a
/// name. False when they were to be saved and are not: the program is to go on then.
[[nodiscard]] QCoro::Task<bool> SaveStandardsBeforeExit(Session& session, MessageService& messages,
                                                        FileDialogs& dialogs);

}  // namespace vexa

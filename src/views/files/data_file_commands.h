// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"
#include "views/common/file_questions.h"

namespace vexa {

/// The open command: asks for a data file and opens it; true when stored.
QCoro::Task<bool> OpenDataFile(Session& session, MessageService& messages, FileDialogs& dialogs);

/// Reads a data file, asks whether slots may be cleared for it, and stores it; true when stored.
QCoro::Task<bool> OpenDataFile(QString path, Session& session, MessageService& messages);

/// The save-as command: asks for a name and writes the slots in the chosen layout; true when
/// written.
QCoro::Task<bool> SaveDataFileAs(Session& session, MessageService& messages, FileDialogs& dialogs);

}  // namespace vexa

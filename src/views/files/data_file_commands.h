// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"
#include "views/common/file_questions.h"

namespace vexa {

/// The open command: asks for a data file, reads it, asks whether slots may be cleared for it, and
/// stores it.
QCoro::Task<> OpenDataFile(Session& session, MessageService& messages, FileDialogs& dialogs);

/// The save-as command: asks for a name and writes the slots in the chosen layout.
QCoro::Task<> SaveDataFileAs(Session& session, MessageService& messages, FileDialogs& dialogs);

}  // namespace vexa

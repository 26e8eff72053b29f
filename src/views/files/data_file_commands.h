// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"
#include "views/files/file_questions.h"

namespace vexa {

/// The open command: asks for a data file, reads it, asks whether slots may be cleared for it, and
/// stores it.
QCoro::Task<> OpenDataFile(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

/// The save-as command: asks for a name and writes the slots in the chosen layout.
QCoro::Task<> SaveDataFileAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"
#include "views/common/file_questions.h"

namespace vexa {

/// The open command: asks for a data file and reads it into the slots; true when it was read.
bool OpenDataFile(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

/// The save-as command: asks for a name and writes the slots in the chosen layout; true when
/// written.
bool SaveDataFileAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

}  // namespace vexa

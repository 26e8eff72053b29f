// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// True when the file does not exist yet or the user agrees to replace it.
[[nodiscard]] bool MayReplace(const QString& path, MessageService& messages);

/// Shows that a file could not be written.
void ShowWriteError(const QString& path, MessageService& messages);

/// The save-as command: asks for a name and writes the slots in the chosen layout.
void SaveDataFileAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

}  // namespace vexa

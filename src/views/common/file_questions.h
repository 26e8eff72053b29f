// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"

namespace vexa {

/// True when the file does not exist yet or the user agrees to replace it. `buttons` are those of
/// the question, Yes and No unless the window asks with OK and Cancel.
[[nodiscard]] bool MayReplace(const QString& path, MessageService& messages,
                              std::int16_t buttons = message_type::kYesNo);

/// True when the settings files can hold the name; otherwise it is refused with a message.
[[nodiscard]] bool MayKeepName(const QString& path, MessageService& messages);

/// Shows that a file could not be written.
void ShowWriteError(const QString& path, MessageService& messages);

}  // namespace vexa

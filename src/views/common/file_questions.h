// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/known_files.h"
#include "base/message.h"
#include "base/replace_file.h"

namespace vexa {

/// True when the file does not exist yet or the user agrees to replace it. `question` may be
/// kReplaceFileOrCancel, too.
[[nodiscard]] QCoro::Task<bool> MayReplace(QString path, MessageService& messages,
                                           Message question = Message::kReplaceFile);

/// True when nobody else has changed the settings file since it was known, or the user agrees to
/// replace what the other has written.
[[nodiscard]] QCoro::Task<bool> MayReplaceKnown(const KnownFiles& known, QString path,
                                                MessageService& messages);

/// True when the settings files can hold the name; otherwise it is refused with a message.
[[nodiscard]] bool MayKeepName(const QString& path, MessageService& messages);

/// Tells that a file could not be written, and why; nothing when it was written. True when written.
bool TellWritten(const WriteResult& result, const QString& path, MessageService& messages);

}  // namespace vexa

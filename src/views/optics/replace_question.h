// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"

namespace vexa {

/// True when the file does not exist yet, or the user answers the question with OK.
[[nodiscard]] bool AgreesToReplace(const QString& path, MessageService& messages);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message.h"
#include "files/program_settings_file.h"
#include "measurement/session.h"

namespace vexa {

/// Has a session fit each sample with the stack that the settings name, where they ask for it. What
/// comes back is to be told: the stack cannot be used, and nothing is fitted.
[[nodiscard]] std::optional<MessageCall> TakeFilmStack(const ProgramSettings& settings,
                                                       Session& session);

}  // namespace vexa

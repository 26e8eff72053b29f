// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// Asks for an environment file and reads it, with the standards and dispersion data that it names.
/// True when the settings changed, be it to the defaults after a file that cannot be read.
[[nodiscard]] QCoro::Task<bool> OpenEnvironment(Session& session, MessageService& messages,
                                                FileDialogs& dialogs);

/// The same with a file that was chosen elsewhere.
[[nodiscard]] bool OpenEnvironment(const QString& path, Session& session, MessageService& messages);

/// Writes the environment file in use; true when written. It asks where a file of that name
/// was never read, so that defaults do not take the place of a good one, and where another has
/// changed it.
QCoro::Task<bool> SaveEnvironment(Session& session, MessageService& messages);

/// Asks for a name, writes the environment under it and keeps it as the name in use; true
/// when written.
QCoro::Task<bool> SaveEnvironmentAs(Session& session, MessageService& messages,
                                    FileDialogs& dialogs);

}  // namespace vexa

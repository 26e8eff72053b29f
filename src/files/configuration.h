// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The built-in defaults of the start-up file and the environment file, and "vexa.env" as the name
/// of the latter.
void SetEnvDefaults(VEXATYPE& state);

/// Reads start-up file, environment file, calibration file and standard file of the program
/// directory, each with its defaults where it cannot be read.
void LoadConfiguration(VEXATYPE& state, MessageService& messages);

/// Reads an environment file while the program runs, with the standard file that it names. False,
/// with a message and the environment's defaults set, when it cannot be read.
[[nodiscard]] bool LoadEnvironment(const QString& path, VEXATYPE& state, MessageService& messages);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measurement/vexatype.h"

namespace vexa {

/// Reads the start-up file `vexa.int` of the program directory. After a failure what was read
/// before it stays, and the caller sets the defaults.
[[nodiscard]] bool ReadStartupFile(VEXATYPE& state);

/// Writes it; true when written. One that cannot be read is kept beside it as `vexa.int.bad`.
[[nodiscard]] bool WriteStartupFile(const VEXATYPE& state);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Writes colour values and sample information of all ten slots as an additional-data file; true
/// when written. See FileText::WriteTo.
[[nodiscard]] bool WriteAddDataFile(const QString& path, const VEXATYPE& state);

/// Reads the sample information of such a file (version 2.99 or later) into the ten slots; its
/// values are skipped. A failure is shown; information already read then stays.
[[nodiscard]] bool ReadAddDataFile(const QString& path, VEXATYPE& state, MessageService& messages);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// The device of serial port `number` (1 or more): the entry com<number> of the program directory
/// when there is one (a link to a device or a pseudo-terminal, dangling or not), else
/// /dev/ttyS<number-1>.
[[nodiscard]] QString SerialPortPath(const QString& programDirectory, int number);

}  // namespace vexa

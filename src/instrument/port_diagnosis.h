// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// Why a device could not be opened, or was lost, in a few sentences for the user: there is no such
/// device, its group is not the user's, or which program has it open.
[[nodiscard]] QString ExplainClosedPort(const QString& devicePath);

/// Why a device that could be opened gives no answer: another program that reads from it, else what
/// to look at.
[[nodiscard]] QString ExplainSilentPort(const QString& devicePath);

}  // namespace vexa

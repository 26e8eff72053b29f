// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>

#include "measurement/vexatype.h"

namespace vexa {

/// Every setting that a result depends on: "instrument", "colour", "reference" and "coat" (as
/// their dispersion settings), "thickness", "standardFile" (its name) and "standard" (the text of a
/// standard file that holds the standards in force).
[[nodiscard]] QJsonObject SettingsJson(const Settings& state);

}  // namespace vexa

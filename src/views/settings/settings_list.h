// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <vector>

#include "measurement/vexatype.h"

namespace vexa {

/// One setting as text.
struct SettingsRow {
  QString label;        ///< empty where the caption of the group says it
  QStringList values;   ///< one, or several side by side; empty ones where nothing is set
  QString unit{};       ///< of all values
  QStringList names{};  ///< of the values, where they have any
};

struct SettingsGroup {
  QString caption;
  std::vector<SettingsRow> rows;
};

/// All settings in force as text, in the groups of the windows that set them. The parameters are
/// those of the dispersion formula chosen, none without a formula. A choice that is none of those
/// offered, as a file may hold it, is "-".
[[nodiscard]] std::vector<SettingsGroup> SettingsList(const VEXATYPE& state);

}  // namespace vexa

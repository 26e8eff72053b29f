// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "measurement/vexatype.h"
#include "views/paper/page_table.h"

namespace vexa {

/// What the film fits of the valid slots were made with; nothing without any.
[[nodiscard]] std::optional<PageTable> FitSettingTable(const VEXATYPE& state);

}  // namespace vexa

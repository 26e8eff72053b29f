// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "measurement/vexatype.h"
#include "views/print/table.h"

namespace vexa {

/// Sample number, remarks and date of each valid slot.
[[nodiscard]] Table SampleTable(const VEXATYPE& state);

/// Colour values, mean reflectances and thickness of each valid slot; "-" where there is none.
[[nodiscard]] Table ValueTable(const VEXATYPE& state);

/// The verdicts on each valid slot below the limits that they come from; nothing when the standards
/// judge nothing.
[[nodiscard]] std::optional<Table> VerdictTable(const VEXATYPE& state);

/// "3 NAME" for slot 3.
[[nodiscard]] QString SlotTitle(const VEXATYPE& state, int number);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "measurement/vexatype.h"
#include "views/paper/page_table.h"

namespace vexa {

/// Sample number, remarks and date of each valid slot.
[[nodiscard]] PageTable SampleTable(const VEXATYPE& state);

/// Colour values, mean reflectances and thickness of each valid slot; "-" where there is none.
[[nodiscard]] PageTable ValueTable(const VEXATYPE& state);

/// The CIE colour of each valid slot with its spread, and in the caption what it was computed for
/// and what is said of the range; "-" where there is none.
[[nodiscard]] PageTable CieTable(const VEXATYPE& state);

/// The thickness of each valid slot with what is in doubt about it, and the film fit beside it;
/// nothing where there is neither doubt nor fit.
[[nodiscard]] std::optional<PageTable> ThicknessTable(const VEXATYPE& state);

/// The conditions of the reflectance with their wavelengths and limits; nothing when no band is
/// judged.
[[nodiscard]] std::optional<PageTable> BandTable(const VEXATYPE& state);

/// The verdicts on each valid slot below the limits that they come from; nothing when the standards
/// judge nothing.
[[nodiscard]] std::optional<PageTable> VerdictTable(const VEXATYPE& state);

/// "3 NAME" for slot 3.
[[nodiscard]] QString SlotTitle(const VEXATYPE& state, int number);

}  // namespace vexa

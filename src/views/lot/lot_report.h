// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/lot_content.h"
#include "views/paper/printed_pages.h"

namespace vexa {

/// The pages of a report of a lot: how many lenses passed, the statistics of each judged value with
/// its capability, the curves, and every measurement. Its foot names the last row of the store, so
/// that the report proves the rows before it.
[[nodiscard]] PageMaker MakeLotReport(const LotContent& lot);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/daily_check_events.h"
#include "views/statistics/xmr_plot.h"

namespace vexa {

/// A value of the daily checks under these conditions, oldest first, with the limits where they are
/// those of the conditions. Marked is what a check was red for, and what lay outside the limits
/// before they were set.
[[nodiscard]] XmrPicture CheckPicture(const DailyCheckHistory& history,
                                      const CheckConditions& conditions, CheckValue value);

}  // namespace vexa

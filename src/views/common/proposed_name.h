// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measurement/vexatype.h"

namespace vexa {

/// A name, without an ending, for a file made from the slots: after the data file, else after the
/// sample of the first valid slot, and the day of the latest measurement ("A-001_20260309"). A name
/// given, in letters that every system takes, stands in place of either
/// ("colour-difference_20260309"). Characters that file systems refuse are left out; empty when
/// there is nothing to name it after.
[[nodiscard]] QString ProposedName(const VEXATYPE& state, const QString& given = {});

}  // namespace vexa

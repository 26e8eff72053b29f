// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The slot that a window measures into by itself: the first empty one, else the last.
[[nodiscard]] int FreeSlot(const VEXATYPE& state);

/// What stands in the slot (1..10) goes only when the user agrees.
[[nodiscard]] QCoro::Task<bool> MayUseSlot(int slot, const VEXATYPE& state,
                                           MessageService& messages);

}  // namespace vexa

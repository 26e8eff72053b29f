// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/slot_choice.h"

namespace vexa {

int FreeSlot(const VEXATYPE& state) {
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    if (!state.Slot(slot)->valid) {
      return slot;
    }
  }
  return kSlotCount;
}

QCoro::Task<bool> MayUseSlot(int slot, const VEXATYPE& state, MessageService& messages) {
  if (!state.Slot(slot)->valid) {
    co_return true;
  }
  const MessageCall question{Message::kUsesSlot, {QString::number(slot)}};
  const MessageResult answer = co_await messages.Ask(question);
  co_return answer == MessageResult::kOk;
}

}  // namespace vexa

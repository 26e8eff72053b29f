// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"

namespace vexa::bench {

/// Shows nothing and agrees to everything.
class SilentMessages : public MessageService {
 public:
  void Tell(const MessageCall& /*call*/) override {}
  QCoro::Task<MessageResult> Ask(MessageCall call) override {
    co_return AgreeingAnswer(CatalogueEntry(call.id).buttons);
  }
  void Beep() override {}
};

}  // namespace vexa::bench

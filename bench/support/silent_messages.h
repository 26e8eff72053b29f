// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"

namespace vexa::bench {

/// Shows nothing and answers OK.
class SilentMessages : public MessageService {
 public:
  MessageResult MsgCall(const QString& /*text*/, std::int16_t /*type*/,
                        const QString& /*title*/) override {
    return MessageResult::kOk;
  }
  void Beep() override {}
};

}  // namespace vexa::bench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"

namespace vexa {

/// Passes questions on and drops what only tells something.
class QuietMessages : public MessageService {
 public:
  explicit QuietMessages(MessageService& messages) : messages_(messages) {}

  void Tell(const MessageCall& /*call*/) override {}
  QCoro::Task<MessageResult> Ask(MessageCall call) override { return messages_.Ask(call); }
  void Beep() override {}

 private:
  MessageService& messages_;
};

}  // namespace vexa

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
  MessageResult MsgCall(const QString& text, std::int16_t type, const QString& title) override {
    return (type & message_type::kButtonMask) == message_type::kOk
               ? MessageResult::kOk
               : messages_.MsgCall(text, type, title);
  }
  void Beep() override {}

 private:
  MessageService& messages_;
};

}  // namespace vexa

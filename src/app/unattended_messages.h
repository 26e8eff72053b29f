// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"

namespace vexa {

/// One line "vexa: TEXT" on standard error.
void Complain(const QString& text);

/// Nobody is there to answer: a question is answered so that the work goes on and nothing is saved
/// that nobody asked for; any other message is a line on standard error.
class UnattendedMessages : public MessageService {
 public:
  void Tell(const MessageCall& call) override;
  QCoro::Task<MessageResult> Ask(MessageCall call) override;
  void Beep() override {}

  int faults = 0;  ///< messages other than questions
};

}  // namespace vexa

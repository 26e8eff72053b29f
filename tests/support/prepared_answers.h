// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "base/message.h"

namespace vexa::test {

/// A message that was shown: which one and with what arguments.
struct ShownMessage {
  ShownMessage(Message shown, QStringList with = {})  // NOLINT: a message alone is one shown
      : id(shown), arguments(std::move(with)) {}

  bool operator==(const ShownMessage&) const = default;

  /// "TITLE: TEXT".
  [[nodiscard]] std::string Text() const {
    return MessageTitle(id).toStdString() + ": " + MessageText({id, arguments}).toStdString();
  }

  Message id;
  QStringList arguments;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
  *out << '"' << message.Text() << '"';
}

using Shown = std::vector<ShownMessage>;

/// Keeps every message and gives the prepared answers to questions one after another, then OK.
class PreparedAnswers : public MessageService {
 public:
  void Tell(const MessageCall& call) override {
    shown_.emplace_back(call.id, call.arguments);
    if (whenShown) {
      whenShown();
    }
  }
  QCoro::Task<MessageResult> Ask(MessageCall call) override {
    Tell(call);
    co_return NextAnswer();
  }
  void Beep() override { ++beeps; }

  Shown Take() { return std::exchange(shown_, {}); }

  std::deque<MessageResult> answers;
  std::function<void()> whenShown;  ///< called while a message waits for its answer
  int beeps = 0;

 private:
  MessageResult NextAnswer() {
    if (answers.empty()) {
      return MessageResult::kOk;
    }
    const MessageResult answer = answers.front();
    answers.pop_front();
    return answer;
  }

  Shown shown_;
};

}  // namespace vexa::test

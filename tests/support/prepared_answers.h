// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/message.h"

namespace vexa::test {

/// A message that was shown: "TITLE: TEXT", and its type code.
struct ShownMessage {
  std::string text;
  int type = 0;
  bool operator==(const ShownMessage&) const = default;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
  *out << '"' << message.text << "\" (" << message.type << ')';
}

using Shown = std::vector<ShownMessage>;

/// Keeps every message and gives the prepared answers one after another, then OK.
class PreparedAnswers : public MessageService {
 public:
  MessageResult MsgCall(const QString& text, std::int16_t type, const QString& title) override {
    shown_.push_back({title.toStdString() + ": " + text.toStdString(), type});
    if (whenShown) {
      whenShown();
    }
    if (answers.empty()) {
      return MessageResult::kOk;
    }
    return std::exchange(answers, {answers.begin() + 1, answers.end()}).front();
  }
  void Beep() override { ++beeps; }

  Shown Take() { return std::exchange(shown_, {}); }

  std::deque<MessageResult> answers;
  std::function<void()> whenShown;  ///< called while a message waits for its answer
  int beeps = 0;

 private:
  Shown shown_;
};

}  // namespace vexa::test

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/message.h"

namespace vexa::test {

/// A message that was shown: which one and with what arguments. One that was called by its text is
/// "TITLE: TEXT" and its type code.
struct ShownMessage {
  ShownMessage(Message id, QStringList arguments = {})  // NOLINT: a message alone is one shown
      : call(MessageCall{id, std::move(arguments)}),
        text(MessageTitle(id).toStdString() + ": " + MessageText(*call).toStdString()),
        type(MessageType(id)) {}
  ShownMessage(std::string titleAndText, int typeCode)
      : text(std::move(titleAndText)), type(typeCode) {}

  bool operator==(const ShownMessage& other) const {
    return call && other.call ? call == other.call : text == other.text && type == other.type;
  }

  std::optional<MessageCall> call;
  std::string text;
  int type = 0;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out) {
  *out << '"' << message.text << "\" (" << message.type << ')';
}

using Shown = std::vector<ShownMessage>;

/// Keeps every message and gives the prepared answers to questions one after another, then OK.
class PreparedAnswers : public MessageService {
 public:
  void Tell(const MessageCall& call) override {
    shown_.push_back({call.id, call.arguments});
    if (whenShown) {
      whenShown();
    }
  }
  QCoro::Task<MessageResult> Ask(MessageCall call) override {
    co_return Show({call.id, call.arguments});
  }
  MessageResult MsgCall(const QString& text, std::int16_t type, const QString& title) override {
    return Show({title.toStdString() + ": " + text.toStdString(), type});
  }
  void Beep() override { ++beeps; }

  Shown Take() { return std::exchange(shown_, {}); }

  std::deque<MessageResult> answers;
  std::function<void()> whenShown;  ///< called while a message waits for its answer
  int beeps = 0;

 private:
  MessageResult Show(ShownMessage message) {
    shown_.push_back(std::move(message));
    if (whenShown) {
      whenShown();
    }
    if (answers.empty()) {
      return MessageResult::kOk;
    }
    return std::exchange(answers, {answers.begin() + 1, answers.end()}).front();
  }

  Shown shown_;
};

}  // namespace vexa::test

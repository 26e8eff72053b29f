// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "base/message_catalogue.h"

namespace vexa {

/// A message as a value: what a fault carries upwards until someone may show it.
struct MessageCall {
  Message id;
  QStringList arguments = {};
  QString details = {};  ///< more about it, which a user may unfold below the text

  bool operator==(const MessageCall&) const = default;
};

/// The title of a message in the language in force.
[[nodiscard]] QString MessageTitle(Message id);

/// The text likewise, its arguments put in; single CR characters break its lines.
[[nodiscard]] QString MessageText(const MessageCall& call);

/// The button that ended a message.
enum class MessageResult : std::int16_t { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

/// The first of the buttons: Yes or OK.
[[nodiscard]] MessageResult AgreeingAnswer(MessageButtons buttons);

/// What closing a message by its frame means: Cancel where there is one, else No, else OK.
[[nodiscard]] MessageResult RefusingAnswer(MessageButtons buttons);

/// Where every message of the system goes: a dialog in the window, a line on the command line,
/// a prepared answer in a test.
class MessageService {
 public:
  MessageService() = default;
  virtual ~MessageService() = default;
  MessageService(const MessageService&) = delete;
  MessageService& operator=(const MessageService&) = delete;

  /// Tells the user and returns at once; a window shows its messages one after another.
  virtual void Tell(const MessageCall& call) = 0;

  /// Asks the user; done when the answer is there. Who is not there to answer (the command line, a
  /// test) has answered when this returns. A question that can no longer be answered, because its
  /// window goes, gets the refusing answer: refusing must touch nothing that goes with a window.
  virtual QCoro::Task<MessageResult> Ask(MessageCall call) = 0;

  /// The short sound before a message that must not be missed.
  virtual void Beep() = 0;
};

/// Tells one after another.
void TellAll(const QList<MessageCall>& calls, MessageService& messages);

}  // namespace vexa

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

/// Type code of a message: one button set plus one icon.
namespace message_type {
inline constexpr std::int16_t kOk = 0;
inline constexpr std::int16_t kOkCancel = 1;
inline constexpr std::int16_t kYesNoCancel = 3;
inline constexpr std::int16_t kYesNo = 4;
inline constexpr std::int16_t kStopIcon = 16;
inline constexpr std::int16_t kQuestionIcon = 32;
inline constexpr std::int16_t kWarningIcon = 48;
inline constexpr std::int16_t kInformationIcon = 64;
inline constexpr std::int16_t kButtonMask = 0x0f;
inline constexpr std::int16_t kIconMask = 0x70;
}  // namespace message_type

/// The type code of a catalogue entry.
[[nodiscard]] std::int16_t MessageType(Message id);

/// The titles that messages of all kinds share.
namespace message_title {
inline const QString kError = QStringLiteral("VEXA-KT ｴﾗｰ");
inline const QString kWarning = QStringLiteral("VEXA-KT ﾜｰﾆﾝｸﾞ");
inline const QString kMessage = QStringLiteral("VEXA-KT ﾒｯｾｰｼﾞ");
inline const QString kInformation = QStringLiteral("VEXA-KT 情報");
}  // namespace message_title

/// Where every message of the system goes: a dialog in the window, a line on the command line,
/// a prepared answer in a test.
class MessageService {
 public:
  MessageService() = default;
  virtual ~MessageService() = default;
  MessageService(const MessageService&) = delete;
  MessageService& operator=(const MessageService&) = delete;

  /// Tells the user and returns at once; a window shows its messages one after another.
  virtual void Tell(const MessageCall& call);

  /// Asks the user; done when the answer is there. Who is not there to answer (the command line, a
  /// test) has answered when this returns. A question that can no longer be answered, because its
  /// window goes, gets the refusing answer: refusing must touch nothing that goes with a window.
  virtual QCoro::Task<MessageResult> Ask(MessageCall call);

  /// The short sound before a message that must not be missed.
  virtual void Beep() = 0;

  /// Shows the text (single CR characters break its lines) and returns the button pressed.
  virtual MessageResult MsgCall(const QString& text, std::int16_t type, const QString& title) = 0;

  /// The same with more about it, which a user may unfold below the text; a service without room
  /// for that leaves the details out, as all do that are empty.
  virtual MessageResult MsgCallWithDetails(const QString& text, std::int16_t type,
                                           const QString& title, const QString& /*details*/) {
    return MsgCall(text, type, title);
  }
};

/// Tells one after another.
void TellAll(const QList<MessageCall>& calls, MessageService& messages);

}  // namespace vexa

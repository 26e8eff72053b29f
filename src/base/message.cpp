// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message.h"

#include "base/translation.h"

namespace vexa {

QString MessageTitle(Message id) {
  return Text::tr(CatalogueEntry(id).title);
}

// In one pass: an argument may itself hold what looks like a place for one, as a path may.
QString MessageText(const MessageCall& call) {
  const QString pattern = Text::tr(CatalogueEntry(call.id).text);
  QString text;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const int number =
        pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : -1;
    if (number < 1) {
      text += pattern[i];
      continue;
    }
    text += call.arguments.value(number - 1);
    ++i;
  }
  return text;
}

MessageResult AgreeingAnswer(MessageButtons buttons) {
  const bool yes = buttons == MessageButtons::kYesNo || buttons == MessageButtons::kYesNoCancel;
  return yes ? MessageResult::kYes : MessageResult::kOk;
}

MessageResult RefusingAnswer(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
    case MessageButtons::kYesNoCancel:
      return MessageResult::kCancel;
    case MessageButtons::kYesNo:
      return MessageResult::kNo;
    case MessageButtons::kOk:
      break;
  }
  return MessageResult::kOk;
}

std::int16_t MessageType(Message id) {
  constexpr std::int16_t kIcons[] = {message_type::kStopIcon, message_type::kQuestionIcon,
                                     message_type::kWarningIcon, message_type::kInformationIcon};
  constexpr std::int16_t kButtons[] = {message_type::kOk, message_type::kOkCancel,
                                       message_type::kYesNoCancel, message_type::kYesNo};
  const MessageEntry& entry = CatalogueEntry(id);
  return static_cast<std::int16_t>(kButtons[static_cast<std::size_t>(entry.buttons)] +
                                   kIcons[static_cast<std::size_t>(entry.icon)]);
}

void MessageService::Tell(const MessageCall& call) {
  MsgCallWithDetails(MessageText(call), MessageType(call.id), MessageTitle(call.id), call.details);
}

QCoro::Task<MessageResult> MessageService::Ask(MessageCall call) {
  co_return MsgCallWithDetails(MessageText(call), MessageType(call.id), MessageTitle(call.id),
                               call.details);
}

void TellAll(const QList<MessageCall>& calls, MessageService& messages) {
  for (const MessageCall& call : calls) {
    messages.Tell(call);
  }
}

}  // namespace vexa

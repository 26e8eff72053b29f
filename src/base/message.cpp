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

void TellAll(const QList<MessageCall>& calls, MessageService& messages) {
  for (const MessageCall& call : calls) {
    messages.Tell(call);
  }
}

}  // namespace vexa

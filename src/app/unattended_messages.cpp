// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/unattended_messages.h"

#include <cstdio>

namespace vexa {

void Complain(const QString& text) {
  std::fprintf(stderr, "vexa: %s\n", qUtf8Printable(text));
}

MessageResult UnattendedMessages::MsgCall(const QString& text, std::int16_t type,
                                          const QString& title) {
  switch (type & message_type::kButtonMask) {
    case message_type::kYesNoCancel:
      return MessageResult::kNo;
    case message_type::kYesNo:
      return MessageResult::kYes;
    case message_type::kOkCancel:
      return MessageResult::kOk;
    default:
      Complain(title + QStringLiteral(": ") + QString(text).replace(u'\r', u' '));
      ++faults;
      return MessageResult::kOk;
  }
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/unattended_messages.h"

#include <cstdio>

namespace vexa {

void Complain(const QString& text) {
  std::fprintf(stderr, "vexa: %s\n", qUtf8Printable(text));
}

void UnattendedMessages::Tell(const MessageCall& call) {
  Complain(MessageTitle(call.id) + QStringLiteral(": ") + MessageText(call).replace(u'\r', u' '));
  ++faults;
}

QCoro::Task<MessageResult> UnattendedMessages::Ask(MessageCall call) {
  const MessageButtons buttons = CatalogueEntry(call.id).buttons;
  co_return buttons == MessageButtons::kYesNoCancel ? MessageResult::kNo : AgreeingAnswer(buttons);
}

}  // namespace vexa

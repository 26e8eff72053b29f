// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_questions.h"

#include <QFileInfo>

#include "base/code_page.h"

namespace vexa {

QCoro::Task<bool> MayReplace(QString path, MessageService& messages, Message question) {
  if (!QFileInfo::exists(path)) {
    co_return true;
  }
  const MessageCall call{question};
  const MessageResult answer = co_await messages.Ask(call);
  co_return answer == MessageResult::kYes || answer == MessageResult::kOk;
}

QCoro::Task<bool> MayReplaceKnown(const KnownFiles& known, QString path, MessageService& messages) {
  if (!known.IsChangedByOthers(path)) {
    co_return true;
  }
  const MessageCall call{Message::kReplaceChangedFile, {path}};
  const MessageResult answer = co_await messages.Ask(call);
  co_return answer == MessageResult::kYes || answer == MessageResult::kOk;
}

bool MayKeepName(const QString& path, MessageService& messages) {
  const bool may = IsEncodable(path);
  if (!may) {
    messages.Tell({Message::kNameNotEncodable, {path}});
  }
  return may;
}

bool TellWritten(const WriteResult& result, const QString& path, MessageService& messages) {
  if (!result) {
    messages.Tell({Message::kWriteError, {path, result.reason}});
  }
  return result.written;
}

}  // namespace vexa

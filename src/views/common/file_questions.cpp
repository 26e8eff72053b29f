// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_questions.h"

#include <QFileInfo>

#include "base/code_page.h"

namespace vexa {

using namespace message_type;

bool MayReplace(const QString& path, MessageService& messages, std::int16_t buttons) {
  if (!QFileInfo::exists(path)) {
    return true;
  }
  const MessageResult answer =
      messages.MsgCall(QStringLiteral("同ﾌｧｲﾙ名が存在します。上書き保存しますか？"),
                       static_cast<std::int16_t>(buttons + kWarningIcon), message_title::kWarning);
  return answer == MessageResult::kYes || answer == MessageResult::kOk;
}

bool MayKeepName(const QString& path, MessageService& messages) {
  if (IsEncodable(path)) {
    return true;
  }
  messages.MsgCall(
      QStringLiteral("ﾌｧｲﾙ名に、設定ﾌｧｲﾙに保存できない文字が含まれています。\r\r") + path,
      kOk + kStopIcon, message_title::kError);
  return false;
}

void ShowWriteError(const QString& path, MessageService& messages) {
  messages.MsgCall(QStringLiteral("ﾌｧｲﾙの書き込みでエラーが発生しました。\r\r") + path,
                   kOk + kStopIcon, message_title::kError);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/replace_question.h"

#include <QFileInfo>

namespace vexa {

bool AgreesToReplace(const QString& path, MessageService& messages) {
  return !QFileInfo::exists(path) ||
         messages.MsgCall(QStringLiteral("同ﾌｧｲﾙ名が存在します。上書き保存しますか？"),
                          message_type::kOkCancel + message_type::kWarningIcon,
                          message_title::kWarning) == MessageResult::kOk;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"

namespace vexa {

/// First line of every data file.
inline const QString kDataFileHeader = QStringLiteral("VEXA-KT 440-840 Ver 3.21 Data File");

/// Shows that a file could not be read because it is not of the kind named.
inline void ShowDataReadError(const QString& notOfKind, MessageService& messages) {
  messages.MsgCall(QStringLiteral("ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r") + notOfKind +
                       QStringLiteral("\r\rﾌｧｲﾙを確認してください。"),
                   message_type::kOk + message_type::kStopIcon, message_title::kError);
}

/// The kind that a comma-separated or an additional-data file should have been.
inline const QString kNoCurrentDataFile = kDataFileHeader + QStringLiteral("ﾌｧｲﾙではありません。");

}  // namespace vexa

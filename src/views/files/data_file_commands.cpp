// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/data_file_commands.h"

#include <QFileInfo>

#include "files/data_file.h"

namespace vexa {

using namespace message_type;

bool MayReplace(const QString& path, MessageService& messages) {
  return !QFileInfo::exists(path) ||
         messages.MsgCall(QStringLiteral("同ﾌｧｲﾙ名が存在します。上書き保存しますか？"),
                          kYesNo + kWarningIcon, message_title::kWarning) == MessageResult::kYes;
}

void ShowWriteError(const QString& path, MessageService& messages) {
  messages.MsgCall(QStringLiteral("ﾌｧｲﾙの書き込みでエラーが発生しました。\r\r") + path,
                   kOk + kStopIcon, message_title::kError);
}

void SaveDataFileAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  if (!state.HasValidSlot()) {
    messages.MsgCall(QStringLiteral("有効ﾃﾞｰﾀがありません。"), kOk + kInformationIcon,
                     message_title::kInformation);
    return;
  }
  const std::optional<SaveChoice> choice = dialogs.AskSave(
      QStringLiteral("ﾌｧｲﾙの名前を付けて保存"),
      QStringLiteral("Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat"));
  if (!choice) {
    return;
  }
  const auto layout = static_cast<DataFileLayout>(choice->filterIndex);
  const QString path =
      WithDefaultExtension(choice->path, layout == DataFileLayout::kCsv ? QStringLiteral(".csv")
                                                                        : QStringLiteral(".dat"));
  if (!MayReplace(path, messages)) {
    return;
  }
  if (WriteDataFile(path, layout, state)) {
    state.currentDataFileName = path;
  } else {
    ShowWriteError(path, messages);
  }
}

}  // namespace vexa

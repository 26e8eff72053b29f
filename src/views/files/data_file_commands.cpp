// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/data_file_commands.h"

#include "files/data_file.h"

namespace vexa {

using namespace message_type;

bool OpenDataFile(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<QString> path = dialogs.AskOpen(
      QStringLiteral("ﾌｧｲﾙを開く"), QStringLiteral("ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|"));
  if (path && ReadDataFile(*path, state, messages)) {
    state.currentDataFileName = *path;
    return true;
  }
  return false;
}

bool SaveDataFileAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  if (!state.HasValidSlot()) {
    messages.MsgCall(QStringLiteral("有効ﾃﾞｰﾀがありません。"), kOk + kInformationIcon,
                     message_title::kInformation);
    return false;
  }
  const std::optional<SaveChoice> choice = dialogs.AskSave(
      QStringLiteral("ﾌｧｲﾙの名前を付けて保存"),
      QStringLiteral("Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat"));
  if (!choice) {
    return false;
  }
  const QStringList extensions{QStringLiteral(".csv"), QStringLiteral(".dat")};
  auto layout = static_cast<DataFileLayout>(choice->filterIndex);
  const QString path =
      WithExtension(choice->path, extensions[layout == DataFileLayout::kCsv ? 0 : 1], extensions);
  // A file is read as its ending says, so an ending typed against the filter is what counts.
  const DataFileLayout ending = LayoutByEnding(path);
  if ((ending == DataFileLayout::kCsv) != (layout == DataFileLayout::kCsv)) {
    layout = ending;
  }
  if (!MayReplace(path, messages)) {
    return false;
  }
  if (!WriteDataFile(path, layout, state)) {
    ShowWriteError(path, messages);
    return false;
  }
  state.currentDataFileName = path;
  return true;
}

}  // namespace vexa

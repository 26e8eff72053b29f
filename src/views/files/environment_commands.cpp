// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/environment_commands.h"

#include "files/configuration.h"
#include "files/environment_file.h"
#include "measurement/dispersion_data.h"
#include "measurement/evaluation.h"
#include "views/common/file_questions.h"

namespace vexa {
namespace {

bool Write(const QString& path, const VEXATYPE& state, MessageService& messages) {
  const bool written = WriteEnvFile(path, state);
  if (!written) {
    ShowWriteError(path, messages);
  }
  return written;
}

}  // namespace

bool OpenEnvironment(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<QString> path = dialogs.AskOpen(
      QStringLiteral("環境ﾌｧｲﾙを開く"),
      QStringLiteral("環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|") + QStringLiteral("全てのﾌｧｲﾙ(*.*)|*.*|"));
  if (!path || !MayKeepName(*path, messages)) {
    return false;
  }
  (void)LoadEnvironment(*path, state, messages);
  LoadDispersionData(state, messages);
  EvaluateAgain(state);
  return true;
}

bool SaveEnvironment(VEXATYPE& state, MessageService& messages) {
  if (state.envFileName.isEmpty()) {
    messages.MsgCall(QStringLiteral("ﾌｧｲﾙ名が定義されていません。"),
                     message_type::kOk + message_type::kStopIcon, message_title::kError);
    return false;
  }
  return Write(CompletePath(state, state.envFileName), state, messages);
}

void SaveEnvironmentAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<SaveChoice> choice =
      dialogs.AskSave(QStringLiteral("環境ﾌｧｲﾙの名前を付けて保存"),
                      QStringLiteral("Enviroment File (*.env)|*.env"));
  if (!choice) {
    return;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".env"));
  if (MayKeepName(path, messages) && MayReplace(path, messages) && Write(path, state, messages)) {
    state.envFileName = path;
  }
}

}  // namespace vexa

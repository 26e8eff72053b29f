// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/environment_commands.h"

#include <QFileInfo>

#include "files/configuration.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "measurement/dispersion_data.h"
#include "measurement/evaluation.h"
#include "views/files/file_questions.h"

namespace vexa {
namespace {

bool Write(const QString& path, VEXATYPE& state, MessageService& messages) {
  const bool written = TellWritten(WriteEnvFile(path, state), path, messages);
  state.envFileRead = state.envFileRead || written;
  return written;
}

}  // namespace

bool OpenEnvironment(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<QString> path = dialogs.AskOpen(
      QStringLiteral("環境ﾌｧｲﾙを開く"),
      QStringLiteral("環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|") + QStringLiteral("全てのﾌｧｲﾙ(*.*)|*.*|"));
  if (!path || !MayKeepName(NameForStartup(state, *path), messages)) {
    return false;
  }
  const Environment environment = ReadEnvironment(*path, state.programDirectory);
  (void)ApplyEnvironment(environment, state);
  TellAll(environment.notices, messages);
  TellAll(LoadDispersionData(state).notices, messages);
  EvaluateAgain(state);
  return true;
}

QCoro::Task<bool> SaveEnvironment(VEXATYPE& state, MessageService& messages) {
  if (state.envFileName.isEmpty()) {
    messages.Tell({Message::kNoEnvironmentName});
    co_return false;
  }
  const QString path = CompletePath(state, state.envFileName);
  if (!state.envFileRead && QFileInfo::exists(path)) {
    const MessageCall question{Message::kReplaceUnreadEnvironment, {path}};
    const MessageResult answer = co_await messages.Ask(question);
    if (answer != MessageResult::kYes) {
      co_return false;
    }
  }
  co_return Write(path, state, messages);
}

QCoro::Task<> SaveEnvironmentAs(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<SaveChoice> choice =
      dialogs.AskSave(QStringLiteral("環境ﾌｧｲﾙの名前を付けて保存"),
                      QStringLiteral("Enviroment File (*.env)|*.env"));
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".env"));
  if (!MayKeepName(NameForStartup(state, path), messages)) {
    co_return;
  }
  const bool may = co_await MayReplace(path, messages);
  if (may && Write(path, state, messages)) {
    state.envFileName = path;
  }
}

}  // namespace vexa

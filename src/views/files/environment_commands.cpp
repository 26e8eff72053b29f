// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/environment_commands.h"

#include <QFileInfo>

#include "base/translation.h"
#include "files/configuration.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "measurement/dispersion_data.h"
#include "measurement/evaluation.h"
#include "views/common/file_questions.h"

namespace vexa {
namespace {

// The environment in force is in the file of this name now, which becomes the name in use.
bool Write(const QString& path, const QString& name, Session& session, MessageService& messages) {
  const bool written = TellWritten(WriteEnvFile(path, session.State()), path, messages);
  if (written) {
    Settings settings = session.SettingsInForce();
    settings.envFileRead = true;
    settings.knownFiles.Remember(path);
    settings.envFileName = name;
    session.TakeSettings(settings);
  }
  return written;
}

}  // namespace

QCoro::Task<bool> OpenEnvironment(Session& session, MessageService& messages,
                                  FileDialogs& dialogs) {
  const std::optional<QString> path =
      co_await dialogs.AskOpen(Text::tr("環境ﾌｧｲﾙを開く"), Text::tr("環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|") +
                                                               Text::tr("全てのﾌｧｲﾙ(*.*)|*.*|"));
  if (!path) {
    co_return false;
  }
  co_return OpenEnvironment(*path, session, messages);
}

bool OpenEnvironment(const QString& path, Session& session, MessageService& messages) {
  if (!MayKeepName(NameForStartup(session.State(), path), messages)) {
    return false;
  }
  Settings settings = session.SettingsInForce();
  const Environment environment = ReadEnvironment(path, settings.programDirectory);
  (void)ApplyEnvironment(environment, settings);
  TellAll(environment.notices, messages);
  TellAll(LoadDispersionData(settings).notices, messages);
  session.TakeSettings(settings);
  return true;
}

QCoro::Task<bool> SaveEnvironment(Session& session, MessageService& messages) {
  const VEXATYPE& state = session.State();
  if (state.envFileName.isEmpty()) {
    messages.Tell({Message::kNoEnvironmentName});
    co_return false;
  }
  const QString path = CompletePath(state, state.envFileName);
  const bool may = co_await MayReplaceKnown(state.knownFiles, path, messages);
  if (!may) {
    co_return false;
  }
  if (!state.envFileRead && QFileInfo::exists(path)) {
    const MessageCall question{Message::kReplaceUnreadEnvironment, {path}};
    const MessageResult answer = co_await messages.Ask(question);
    if (answer != MessageResult::kYes) {
      co_return false;
    }
  }
  co_return Write(path, state.envFileName, session, messages);
}

QCoro::Task<bool> SaveEnvironmentAs(Session& session, MessageService& messages,
                                    FileDialogs& dialogs) {
  const std::optional<SaveChoice> choice = co_await dialogs.AskSave(
      Text::tr("環境ﾌｧｲﾙの名前を付けて保存"), QStringLiteral("Enviroment File (*.env)|*.env"));
  if (!choice) {
    co_return false;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".env"));
  if (!MayKeepName(NameForStartup(session.State(), path), messages)) {
    co_return false;
  }
  const bool may = co_await MayReplace(path, messages);
  if (!may) {
    co_return false;
  }
  co_return Write(path, path, session, messages);
}

}  // namespace vexa

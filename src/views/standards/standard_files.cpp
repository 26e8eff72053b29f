// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/standard_files.h"

#include "base/translation.h"
#include "standards/standard_file.h"
#include "views/common/file_questions.h"

namespace vexa {

StandardContents ContentsOf(const Settings& state) {
  return {state.standard, state.chromaMarker, state.hueMarker};
}

QCoro::Task<std::optional<StandardFile>> LoadStandardFile(MessageService& messages,
                                                          FileDialogs& dialogs) {
  const std::optional<QString> path = co_await dialogs.AskOpen(
      Text::tr("規格ﾌｧｲﾙを開く"), QStringLiteral("Standard Files (*.std)|*.std"));
  if (!path || !MayKeepName(*path, messages)) {
    co_return std::nullopt;
  }
  const ReadResult<StandardContents> contents = ReadStandardFile(*path);
  if (!contents) {
    messages.Tell(StandardMessage(*path, contents.Fault()));
    co_return std::nullopt;
  }
  const StandardFile file{*path, *contents};
  co_return file;
}

QCoro::Task<std::optional<QString>> SaveStandardFile(StandardContents contents, QString filter,
                                                     MessageService& messages,
                                                     FileDialogs& dialogs) {
  const std::optional<SaveChoice> choice =
      co_await dialogs.AskSave(Text::tr("規格ﾌｧｲﾙの名前を付けて保存"), filter);
  if (!choice) {
    co_return std::nullopt;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".std"));
  if (!MayKeepName(path, messages)) {
    co_return std::nullopt;
  }
  const bool may = co_await MayReplace(path, messages);
  if (may && TellWritten(WriteStandardFile(path, contents), path, messages)) {
    co_return path;
  }
  co_return std::nullopt;
}

QCoro::Task<bool> SaveStandardsBeforeExit(Session& session, MessageService& messages,
                                          FileDialogs& dialogs) {
  const VEXATYPE& state = session.State();
  if (!state.standardsChanged || state.standardFileName.isEmpty()) {
    co_return true;
  }
  const MessageCall question{Message::kSaveStandards};
  const MessageResult answer = co_await messages.Ask(question);
  if (answer != MessageResult::kYes) {
    co_return true;
  }
  const QString filter = QStringLiteral("Standard File (*.std)|*.std");
  const StandardContents contents = ContentsOf(state);
  const std::optional<QString> path =
      co_await SaveStandardFile(contents, filter, messages, dialogs);
  if (!path) {
    co_return false;
  }
  Settings settings = session.SettingsInForce();
  settings.standardFileName = *path;
  settings.standardsChanged = false;
  session.TakeSettings(settings);
  co_return true;
}

}  // namespace vexa

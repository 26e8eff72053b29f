// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/standard_files.h"

#include "standards/standard_file.h"
#include "views/common/file_questions.h"

namespace vexa {

using namespace message_type;

namespace {

/// Passes messages on and remembers that there was one.
class NotedMessages : public MessageService {
 public:
  explicit NotedMessages(MessageService& messages) : messages_(messages) {}

  MessageResult MsgCall(const QString& text, std::int16_t type, const QString& title) override {
    noted_ = true;
    return messages_.MsgCall(text, type, title);
  }
  void Beep() override { messages_.Beep(); }

  [[nodiscard]] bool Noted() const { return noted_; }

 private:
  MessageService& messages_;
  bool noted_ = false;
};

}  // namespace

StandardContents ContentsOf(const VEXATYPE& state) {
  return {state.standard, state.chromaMarker, state.hueMarker};
}

std::optional<StandardFile> LoadStandardFile(MessageService& messages, FileDialogs& dialogs) {
  const std::optional<QString> path = dialogs.AskOpen(
      QStringLiteral("規格ﾌｧｲﾙを開く"), QStringLiteral("Standard Files (*.std)|*.std"));
  if (!path || !MayKeepName(*path, messages)) {
    return std::nullopt;
  }
  StandardFile file{*path, {}};
  NotedMessages noted(messages);
  if (ReadStandardFile(*path, file.contents.standard, file.contents.chromaMarker,
                       file.contents.hueMarker, noted)) {
    return file;
  }
  if (!noted.Noted()) {
    messages.MsgCall(
        QStringLiteral("規格ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r規格ﾌｧｲﾙ名:") + *path,
        kOk + kStopIcon, message_title::kError);
  }
  return std::nullopt;
}

std::optional<QString> SaveStandardFile(const StandardContents& contents, const QString& filter,
                                        MessageService& messages, FileDialogs& dialogs) {
  const std::optional<SaveChoice> choice =
      dialogs.AskSave(QStringLiteral("規格ﾌｧｲﾙの名前を付けて保存"), filter);
  if (!choice) {
    return std::nullopt;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".std"));
  if (!MayKeepName(path, messages) || !MayReplace(path, messages)) {
    return std::nullopt;
  }
  if (!WriteStandardFile(path, contents.standard, contents.chromaMarker, contents.hueMarker)) {
    ShowWriteError(path, messages);
    return std::nullopt;
  }
  return path;
}

bool SaveStandardsBeforeExit(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs) {
  if (!state.standardsChanged || state.standardFileName.isEmpty() ||
      messages.MsgCall(QStringLiteral("規格ﾌｧｲﾙがｾｰﾌﾞされていません。ｾｰﾌﾞしますか。"),
                       kYesNo + kQuestionIcon, message_title::kMessage) != MessageResult::kYes) {
    return true;
  }
  const std::optional<QString> path = SaveStandardFile(
      ContentsOf(state), QStringLiteral("Standard File (*.std)|*.std"), messages, dialogs);
  if (!path) {
    return false;
  }
  state.standardFileName = *path;
  state.standardsChanged = false;
  return true;
}

}  // namespace vexa

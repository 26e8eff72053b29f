// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/files/data_file_commands.h"

#include "base/translation.h"
#include "files/data_file.h"
#include "measurement/evaluation.h"

namespace vexa {
namespace {

// What is to be asked before the content takes the place of what the slots hold.
std::optional<MessageCall> QuestionBefore(const DataFileContent& content, const VEXATYPE& state) {
  const std::optional<MessageCall> erases = StoreQuestion(content);
  const bool unsaved = state.HasValidSlot() && !state.slotsSaved;
  return erases || !unsaved ? erases : std::optional(MessageCall{Message::kReplaceUnsaved});
}

}  // namespace

QCoro::Task<bool> OpenDataFile(Session& session, MessageService& messages, FileDialogs& dialogs) {
  const std::optional<QString> path = co_await dialogs.AskOpen(
      Text::tr("ﾌｧｲﾙを開く"), Text::tr("ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|"));
  if (!path) {
    co_return false;
  }
  const bool opened = co_await OpenDataFile(*path, session, messages);
  co_return opened;
}

QCoro::Task<bool> OpenDataFile(QString path, Session& session, MessageService& messages) {
  const ReadResult<DataFileContent> content = ReadDataFile(path);
  if (!content) {
    messages.Tell(DataFileMessage(content.Fault()));
    co_return false;
  }
  if (const std::optional<MessageCall> question = QuestionBefore(*content, session.State())) {
    const MessageResult answer = co_await messages.Ask(*question);
    if (answer != MessageResult::kOk) {
      co_return false;
    }
  }
  const VEXATYPE& state = session.State();
  const QString comment = content->blocks ? content->comment : state.dataFileComment;
  const SlotTable slotsRead = SlotsWith(*content, state.measurementSlots);
  if (const auto message = AccumulationMessage(session.LoadSlots(slotsRead, path, comment))) {
    messages.Tell(*message);
  }
  co_return true;
}

QCoro::Task<bool> SaveDataFileAs(Session& session, MessageService& messages, FileDialogs& dialogs) {
  const VEXATYPE& state = session.State();
  if (!state.HasValidSlot()) {
    messages.Tell({Message::kNoValidData});
    co_return false;
  }
  const std::optional<SaveChoice> choice = co_await dialogs.AskSave(
      Text::tr("ﾌｧｲﾙの名前を付けて保存"),
      QStringLiteral("Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat"));
  if (!choice) {
    co_return false;
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
  const bool may = co_await MayReplace(path, messages);
  const bool written = may && TellWritten(WriteDataFile(path, layout, state), path, messages);
  if (written) {
    session.SetDataFileName(path);
  }
  co_return written;
}

}  // namespace vexa

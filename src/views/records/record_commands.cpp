// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/record_commands.h"

#include <QFileInfo>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"
#include "measurement/evaluation.h"
#include "records/record_files.h"
#include "views/common/file_questions.h"

namespace vexa {

QCoro::Task<> LoadIntoSlots(QList<WholeRecord> records, Session& session,
                            MessageService& messages) {
  const qsizetype count = std::min<qsizetype>(records.size(), kSlotCount);
  const VEXATYPE& state = session.State();
  const bool erases =
      std::any_of(state.measurementSlots.begin(), state.measurementSlots.begin() + count,
                  [](const MeasurementSlot& slot) { return bool{slot.valid}; });
  if (erases) {
    const MessageCall question{Message::kEraseSlots, {SignedText(static_cast<double>(count))}};
    const MessageResult answer = co_await messages.Ask(question);
    if (answer != MessageResult::kOk) {
      co_return;
    }
  }
  SlotTable loaded = state.measurementSlots;
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    const SampleRecord& sample = records[static_cast<qsizetype>(i)].sample;
    loaded[i] = {};
    loaded[i].reflectance = sample.reflectance;
    loaded[i].info = {sample.sampleNumber, sample.remark1, sample.remark2, sample.measuredAt};
    loaded[i].valid = true;
  }
  if (const auto message =
          AccumulationMessage(session.LoadSlots(loaded, {}, state.dataFileComment))) {
    messages.Tell(*message);
  }
}

QCoro::Task<> ExportAs(QList<WholeRecord> records, FileDialogs& dialogs, MessageService& messages) {
  const std::optional<SaveChoice> choice = co_await dialogs.AskSave(
      Text::tr("記録の書き出し"),
      QStringLiteral("CSV(*.csv)|*.csv|Data File(*.dat)|*.dat|JSON(*.json)|*.json|"
                     "JCAMP-DX(*.jdx)|*.jdx"));
  if (!choice) {
    co_return;
  }
  const QStringList extensions{QStringLiteral(".csv"), QStringLiteral(".dat"),
                               QStringLiteral(".json"), QStringLiteral(".jdx"),
                               QStringLiteral(".dx")};
  const QString path =
      WithExtension(choice->path, extensions.value(choice->filterIndex - 1), extensions);
  const bool may = co_await MayReplace(path, messages);
  if (!may) {
    co_return;
  }
  switch (ExportRecords(path, records)) {
    case ExportOutcome::kWritten:
      break;
    case ExportOutcome::kTooMany:
      messages.Tell({Message::kTooManyForDataFile});
      break;
    case ExportOutcome::kUnknownKind:
    case ExportOutcome::kNotWritten:
      messages.Tell(
          {Message::kWriteError,
           {path, Text::tr("書き込みが許可されていないか、ﾌｧｲﾙに書けない文字があります。")}});
      break;
  }
}

}  // namespace vexa

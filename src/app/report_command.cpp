// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/report_command.h"

#include <QFileInfo>

#include "app/unattended_messages.h"
#include "base/translation.h"
#include "files/configuration.h"
#include "files/data_file.h"
#include "files/program_preferences.h"
#include "measurement/dispersion_data.h"
#include "measurement/session.h"
#include "records/record_settings.h"
#include "views/common/quiet_messages.h"
#include "views/paper/current_printer.h"
#include "views/print/page_header.h"
#include "views/print/report.h"

namespace vexa {
namespace {

void ComputeThicknesses(Session& session) {
  for (int number = 1; number <= kSlotCount; ++number) {
    if (session.State().Slot(number)->valid && session.State().thickness.enabled) {
      // The report shows no thickness where there is none.
      (void)session.ComputeThickness(number);
    }
  }
}

}  // namespace

int RunReport(const ReportCommand& command, const QString& programDirectory) {
  // Two files that do not exist would count as the same.
  const QFileInfo pdf(command.pdfFile);
  if (pdf.exists() && pdf == QFileInfo(command.dataFile)) {
    Complain(Text::tr("%1：データファイル自身です").arg(command.pdfFile));
    return 1;
  }
  UnattendedMessages messages;
  Session session(programDirectory);
  Settings settings = session.SettingsInForce();
  TellAll(LoadConfiguration(settings), messages);
  TellAll(LoadDispersionData(settings).notices, messages);
  session.TakeSettings(settings);
  const VEXATYPE& state = session.State();
  const ReadResult<DataFileContent> content = ReadDataFile(command.dataFile);
  if (content) {
    (void)session.LoadSlots(SlotsWith(*content, {}), QFileInfo(command.dataFile).absoluteFilePath(),
                            content->comment);
  } else {
    messages.Tell(DataFileMessage(content.Fault()));
  }
  if (!state.HasValidSlot()) {
    Complain(Text::tr("%1：データファイルとして読み込めません").arg(command.dataFile));
    return 1;
  }
  ComputeThicknesses(session);

  ReportRequest request = UsualReport(state, QDate::currentDate());
  request.cie = ProgramPreferences(programDirectory).InForce().showCie;
  request.title = command.title;
  request.operatorName = command.operatorName;
  request.proof = ProofText(RecordStorePath(programDirectory));
  if (!WritePdf(command.pdfFile, ReportTitle(request), PageLayoutOf(SavedPrintSettings(state)),
                MakeReport(state, request))) {
    Complain(Text::tr("%1：書き込めません").arg(command.pdfFile));
    return 1;
  }
  return 0;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/report_command.h"

#include <QFileInfo>

#include "app/unattended_messages.h"
#include "files/configuration.h"
#include "files/data_file.h"
#include "measurement/dispersion_data.h"
#include "measurement/evaluation.h"
#include "views/common/quiet_messages.h"
#include "views/print/current_printer.h"
#include "views/print/page_header.h"
#include "views/print/report.h"

namespace vexa {
namespace {

void ComputeThicknesses(VEXATYPE& state, MessageService& messages) {
  for (MeasurementSlot& slot : state.measurementSlots) {
    if (slot.valid && state.thickness.enabled) {
      // The report shows no thickness where there is none.
      (void)ComputeSlotThickness(state, slot, messages);
    }
  }
}

}  // namespace

int RunReport(const ReportCommand& command, const QString& programDirectory) {
  // Two files that do not exist would count as the same.
  const QFileInfo pdf(command.pdfFile);
  if (pdf.exists() && pdf == QFileInfo(command.dataFile)) {
    Complain(QStringLiteral("%1: is the data file itself").arg(command.pdfFile));
    return 1;
  }
  UnattendedMessages messages;
  VEXATYPE state;
  state.programDirectory = programDirectory;
  TellAll(LoadConfiguration(state), messages);
  TellAll(LoadDispersionData(state).notices, messages);
  const ReadResult<DataFileContent> content = ReadDataFile(command.dataFile);
  if (content) {
    StoreDataFile(*content, state, messages);
  } else {
    messages.Tell(DataFileMessage(content.Fault()));
  }
  if (!state.HasValidSlot()) {
    Complain(QStringLiteral("%1: no readable data file").arg(command.dataFile));
    return 1;
  }
  state.currentDataFileName = QFileInfo(command.dataFile).absoluteFilePath();
  QuietMessages quiet(messages);
  ComputeThicknesses(state, quiet);

  ReportRequest request = UsualReport(state, QDate::currentDate());
  request.title = command.title;
  request.operatorName = command.operatorName;
  if (!WritePdf(command.pdfFile, ReportTitle(request), PageLayoutOf(SavedPrintSettings(state)),
                MakeReport(state, request))) {
    Complain(QStringLiteral("%1: cannot be written").arg(command.pdfFile));
    return 1;
  }
  return 0;
}

}  // namespace vexa

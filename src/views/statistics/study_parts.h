// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "measurement/instrument_desk.h"
#include "records/record_reader.h"
#include "records/session_recorder.h"
#include "views/common/file_dialogs.h"
#include "views/paper/current_printer.h"

namespace vexa {

/// What a window works with that measures, keeps records of it, and tells what they come to.
struct StudyParts {
  Session& session;
  InstrumentDesk& desk;
  SessionRecorder& recorder;
  RecordReader& reader;
  QString storePath;
  CurrentPrinter& printer;
  MessageService& messages;
  FileDialogs& dialogs;
};

}  // namespace vexa

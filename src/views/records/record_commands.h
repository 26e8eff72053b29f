// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include "base/message.h"
#include "measurement/session.h"
#include "records/whole_record.h"
#include "views/common/file_dialogs.h"

namespace vexa {

/// Loads the samples (one to ten) into the slots from the first one on, as opening a data file
/// does; asks first where one of these holds a measurement.
QCoro::Task<> LoadIntoSlots(QList<WholeRecord> records, Session& session, MessageService& messages);

/// Asks for a file name and exports the records by its ending.
QCoro::Task<> ExportAs(QList<WholeRecord> records, FileDialogs& dialogs, MessageService& messages);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// Prints a data file as a PDF file without a window.
struct ReportCommand {
  QString dataFile;
  QString pdfFile;
  QString title;
  QString operatorName;
};

/// Reads the data file under the settings of the program directory, evaluates it as the window
/// does, with thicknesses where these are set up, and writes the report of all its slots on the
/// paper of the print settings. The exit status: 0, or 1, with a line on standard error, when the
/// file holds no slots or cannot be read, or the report cannot be written.
[[nodiscard]] int RunReport(const ReportCommand& command, const QString& programDirectory);

}  // namespace vexa

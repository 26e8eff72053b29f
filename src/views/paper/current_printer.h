// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/file_dialogs.h"
#include "views/paper/print_settings.h"
#include "views/paper/printed_pages.h"

namespace vexa {

/// Writes the pages as a PDF file: the file is replaced whole or, when anything fails, left as it
/// was.
WriteResult WritePdf(const QString& path, const QString& title, const QPageLayout& layout,
                     const PageMaker& pages);

/// The print settings of the program directory, its `vexa.prt`; a PDF file on A4 without that file.
[[nodiscard]] PrintSettings SavedPrintSettings(const VEXATYPE& state);

/// The printer that every window prints on.
class CurrentPrinter {
 public:
  CurrentPrinter(const VEXATYPE& state, MessageService& messages, FileDialogs& dialogs);

  [[nodiscard]] const PrintSettings& Settings();

  /// Takes the settings over and keeps them for the next run; a file that cannot be written is
  /// shown, and the settings then hold for this run.
  void SetSettings(const PrintSettings& settings);

  /// Prints the pages, or asks for a file name where the printer is a PDF file, proposing one
  /// after the slots or after `name` (see ProposedName). False when cancelled and, shown, when the
  /// printer is missing or fails or the file cannot be written.
  QCoro::Task<bool> Print(QString title, PageMaker pages, int copies = 1, QString name = {});

 private:
  QCoro::Task<bool> PrintToFile(QString title, PageMaker pages, QString name);
  bool PrintOnPaper(const QString& title, const PageMaker& pages, int copies);

  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  std::optional<PrintSettings> settings_;  ///< read when first asked for
};

}  // namespace vexa

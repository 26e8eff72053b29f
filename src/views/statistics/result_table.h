// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QPicture>
#include <QStringList>
#include <QTableWidget>
#include <vector>

#include "base/message.h"
#include "views/common/file_dialogs.h"
#include "views/paper/current_printer.h"
#include "views/paper/page_table.h"

namespace vexa {

/// A table of results, as it is shown and printed.
struct ResultTable {
  QString caption;
  QStringList headings;
  QList<QStringList> rows;
  int textColumns = 1;  ///< the first ones hold texts, the others numbers
};

/// A table that is looked at and copied, with rows to be chosen.
[[nodiscard]] QTableWidget* MakeResultView(const char* name);

/// Puts the table into it; the last column takes what is left of the width.
void ShowResults(QTableWidget& view, const ResultTable& table);

[[nodiscard]] PageTable ToPage(const ResultTable& table);

/// Prints pictures of plots, each as wide as the page, with tables below them.
QCoro::Task<bool> PrintResults(CurrentPrinter& printer, const QString& title,
                               std::vector<std::pair<QPicture, QSize>> plots,
                               QList<ResultTable> tables);

/// Asks for a name and saves rows as a comma-separated file. What goes into a file is the same in
/// every language.
QCoro::Task<> SaveCsv(QString title, QString proposed, QList<QStringList> rows,
                      MessageService& messages, FileDialogs& dialogs);

/// A number of a result at six significant digits; "-" when it is none.
[[nodiscard]] QString ResultText(double value);

/// A number of a file, with all its digits; empty when it is none.
[[nodiscard]] QString FileNumber(double value);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QCoroTask>
#include <QDialog>
#include <QLabel>
#include <QTableWidget>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/common/colour_kind.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class CurrentPrinter;

/// Compares the valid slots with one of them, the standard. All colours are computed under the
/// colour settings in force, whichever were so when the slots were measured. What is shown can be
/// copied, printed and saved as a comma-separated file, each time with the standard and the
/// conditions and whose colours they are: the instrument's own, as at first, or the CIE ones.
class ColourDifferenceWindow : public QDialog {
  Q_OBJECT

 public:
  /// The selected slot is the first standard, or, when it is empty, the first valid one.
  ColourDifferenceWindow(const VEXATYPE& state, int selectedSlot, CurrentPrinter& printer,
                         MessageService& messages, FileDialogs& dialogs, QWidget* parent = nullptr);

 private:
  void FillStandards(int selectedSlot);
  void FillTable();
  [[nodiscard]] ColourKind Kind() const;
  void AddRow(int slot, int standard);
  /// The rows with their headings; above them, in two columns, the standard and the conditions.
  /// `word` gives the headings their language.
  [[nodiscard]] QList<QStringList> Content(QString (*word)(const char*)) const;
  void CopyTable() const;
  void Print();
  QCoro::Task<> Export();

  const VEXATYPE& state_;
  CurrentPrinter& printer_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  QComboBox* standard_;
  QComboBox* kind_;
  QLabel* range_;
  QTableWidget* table_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "measurement/vexatype.h"
#include "views/paper/current_printer.h"
#include "views/print/report_request.h"

class QButtonGroup;
class QCheckBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace vexa {

/// Asks what a report is to hold, previews it and prints it on the current printer. It stays open
/// when nothing was printed.
class PrintDlg : public QDialog {
  Q_OBJECT

 public:
  /// `request` holds what is offered, and, once printed, what was chosen.
  PrintDlg(const VEXATYPE& state, int selectedSlot, ReportRequest& request, CurrentPrinter& printer,
           MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  QWidget* BuildHeader();
  QWidget* BuildSlots();
  QWidget* BuildContent();
  QWidget* BuildPrinter();
  [[nodiscard]] ReportRequest Entries() const;
  [[nodiscard]] PageMaker Pages(const ReportRequest& request) const;
  void ShowPrinter();
  void Preview();
  void SetUpPrinter();
  QCoro::Task<> Print();

  const VEXATYPE& state_;
  int selectedSlot_;
  ReportRequest& request_;
  CurrentPrinter& printer_;
  MessageService& messages_;
  QLineEdit* title_;
  QLineEdit* operator_;
  QDateEdit* date_;
  QButtonGroup* slots_;
  QButtonGroup* content_;
  QButtonGroup* step_;
  QLabel* printerText_;
  QSpinBox* copies_;
  QCheckBox* diagram_;
  QCheckBox* cie_;
};

/// The print command: opens the dialog, or says that there is nothing to print.
void PrintSlots(const VEXATYPE& state, int selectedSlot, ReportRequest& request,
                CurrentPrinter& printer, MessageService& messages, QWidget* parent);

}  // namespace vexa

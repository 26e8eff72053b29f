// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <array>

#include "base/message.h"
#include "views/paper/current_printer.h"

class QComboBox;
class QRadioButton;

namespace vexa {

class NumberField;

/// The settings of the current printer: printer, paper, orientation, margins.
class PrintSetupDlg : public QDialog {
  Q_OBJECT

 public:
  PrintSetupDlg(CurrentPrinter& printer, MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  QWidget* BuildPaper(const PrintSettings& settings);
  QWidget* BuildMargins(const PrintSettings& settings);
  void FillPrinters(const QString& current);

  CurrentPrinter& printer_;
  MessageService& messages_;
  QComboBox* printers_;
  QComboBox* papers_;
  QRadioButton* landscape_;
  std::array<NumberField*, 4> margins_{};  ///< left, top, right, bottom
};

}  // namespace vexa

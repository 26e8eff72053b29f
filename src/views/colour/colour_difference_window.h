// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QTableWidget>

#include "measurement/vexatype.h"

namespace vexa {

/// Compares the valid slots with one of them, the standard. All colours are computed under the
/// colour settings in force, whichever were so when the slots were measured.
class ColourDifferenceWindow : public QDialog {
  Q_OBJECT

 public:
  /// The selected slot is the first standard, or, when it is empty, the first valid one.
  ColourDifferenceWindow(const VEXATYPE& state, int selectedSlot, QWidget* parent = nullptr);

 private:
  void FillStandards(int selectedSlot);
  void FillTable();
  void AddRow(int slot, int standard);
  void CopyTable() const;

  const VEXATYPE& state_;
  QComboBox* standard_;
  QTableWidget* table_;
};

}  // namespace vexa

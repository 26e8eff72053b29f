// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "measurement/vexatype.h"

class QLabel;
class QTreeWidget;

namespace vexa {

class CurrentPrinter;

/// The extrema that the thickness of a slot was computed from, under the slot, its sample and its
/// date.
class WaveListDlg : public QDialog {
  Q_OBJECT

 public:
  WaveListDlg(const VEXATYPE& state, int selectedSlot, CurrentPrinter& printer,
              QWidget* parent = nullptr);

  /// Shows the list of the slot (1..10) as it is now; an empty one where no thickness was computed.
  void Show(int selectedSlot);

 private:
  const VEXATYPE& state_;
  QLabel* slotText_;
  QLabel* doubtMark_;
  QLabel* doubts_;
  QTreeWidget* list_;
  ExtremumList extrema_;
};

}  // namespace vexa

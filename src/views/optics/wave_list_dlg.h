// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "measurement/vexatype.h"

namespace vexa {

class CurrentPrinter;

/// The extrema that the last thickness computation found.
class WaveListDlg : public QDialog {
  Q_OBJECT

 public:
  WaveListDlg(const VEXATYPE& state, CurrentPrinter& printer, QWidget* parent = nullptr);
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The extrema that the last thickness computation found.
class WaveListDlg : public QDialog {
  Q_OBJECT

 public:
  WaveListDlg(const VEXATYPE& state, MessageService& messages, QWidget* parent = nullptr);
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

class IntegerField;
class UpDownField;

/// Sets sampling time and averaging count and sends them to the controller at once.
class SamplingDlg : public QDialog {
  Q_OBJECT

 public:
  SamplingDlg(VEXATYPE& state, Controller& controller, MessageService& messages,
              QWidget* parent = nullptr);

  void accept() override;

 private:
  VEXATYPE& state_;
  Controller& controller_;
  MessageService& messages_;
  IntegerField* time_;
  UpDownField* averaging_;
};

}  // namespace vexa

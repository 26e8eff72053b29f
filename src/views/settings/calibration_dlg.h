// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "measurement/session.h"

namespace vexa {

class UpDownField;

/// Sets the wavelength calibration shift and writes the calibration file.
class CalibrationDlg : public QDialog {
  Q_OBJECT

 public:
  CalibrationDlg(Session& session, MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  QCoro::Task<> Take(std::int16_t shiftNm);

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  UpDownField* shift_;
};

}  // namespace vexa

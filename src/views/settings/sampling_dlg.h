// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "base/message.h"
#include "measurement/session.h"

class QLabel;

namespace vexa {

class IntegerField;
class UpDownField;

/// Sets sampling time and averaging count and sends them to the controller at once. A hint warns
/// where a measurement would last longer than its answer is awaited.
class SamplingDlg : public QDialog {
  Q_OBJECT

 public:
  SamplingDlg(Session& session, MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  void UpdateHint();

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  IntegerField* time_;
  UpDownField* averaging_;
  QLabel* hint_;
};

}  // namespace vexa

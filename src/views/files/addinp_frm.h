// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <array>

#include "base/message.h"
#include "measurement/session.h"

namespace vexa {

/// The sample information of the ten slots: sample number, two remarks, measurement date. Up and
/// Down go to the same column of the next row; Return selects the entry's text again.
class AddinpFrm : public QDialog {
  Q_OBJECT

 public:
  AddinpFrm(Session& session, MessageService& messages, int selectedSlot,
            QWidget* parent = nullptr);

  /// Takes the entries over. One that is no date, or that the files' code page cannot hold, is
  /// refused with a message, and nothing is taken over.
  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int kColumns = 4;
  using Row = std::array<QLineEdit*, kColumns>;

  void Refuse(QLineEdit& entry, Message why);

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  std::array<Row, kSlotCount> rows_{};
};

}  // namespace vexa

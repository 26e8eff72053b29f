// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "base/message.h"

class QToolButton;

namespace vexa {

/// The dialog through which every message of the system is shown. Made once and used again.
/// Closing it by its frame means Cancel where there is one, else No, else OK.
class OriginalMsgFrm : public QDialog {
  Q_OBJECT

 public:
  explicit OriginalMsgFrm(QWidget* parent = nullptr);

  /// Shows the message over all windows and returns at once; finished() tells that a button was
  /// pressed, which is Result() then. Details, where there are any, unfold below the text.
  void MsgCall(const MessageCall& call);

  [[nodiscard]] MessageResult Result() const { return result_; }

  void reject() override;

 private:
  struct Button {
    QPushButton* widget;
    MessageResult result;
  };

  void ShowText(const QString& text);
  void ShowButtons(MessageButtons buttons);
  void ShowDetails(const QString& details);

  QLabel* icon_;
  QLabel* lblCmmnt_;
  QToolButton* unfold_;
  QLabel* details_;
  std::array<Button, 4> buttons_;
  MessageResult closedByFrame_ = MessageResult::kOk;
  MessageResult result_ = MessageResult::kOk;
};

}  // namespace vexa

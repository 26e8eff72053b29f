// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace vexa {

/// Asks who decides, and why. It cannot be accepted without a reason.
class DecisionDialog : public QDialog {
  Q_OBJECT

 public:
  /// `question` says what is decided.
  DecisionDialog(const QString& title, const QString& question, const QString& operatorName,
                 QWidget* parent = nullptr);

  [[nodiscard]] QString Operator() const { return operator_->text().trimmed(); }
  [[nodiscard]] QString Reason() const { return reason_->text().trimmed(); }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  /// The fields, for those of a derived dialog.
  [[nodiscard]] QFormLayout& Form() { return *form_; }
  /// Whether what the fields of a derived dialog hold can be accepted; at first it can.
  void SetAcceptable(bool acceptable);

 private:
  QFormLayout* form_;
  QLineEdit* operator_;
  QLineEdit* reason_;
  QPushButton* ok_;
  bool acceptable_ = true;
};

}  // namespace vexa

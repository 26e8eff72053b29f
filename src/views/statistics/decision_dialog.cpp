// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/decision_dialog.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"

namespace vexa {

DecisionDialog::DecisionDialog(const QString& title, const QString& question,
                               const QString& operatorName, QWidget* parent)
    : QDialog(parent),
      form_(new QFormLayout),
      operator_(new QLineEdit(operatorName)),
      reason_(new QLineEdit) {
  setObjectName(QStringLiteral("DecisionDialog"));
  setWindowTitle(title);
  operator_->setObjectName(QStringLiteral("DecisionOperator"));
  reason_->setObjectName(QStringLiteral("DecisionReason"));
  auto* text = new QLabel(question);
  text->setWordWrap(true);
  form_->addRow(Text::tr("理由"), reason_);
  form_->addRow(Text::tr("決定者"), operator_);
  QWidget* buttons = OkCancelButtons(*this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addLayout(form_);
  layout->addStretch();
  layout->addWidget(buttons);
  ok_ = buttons->findChild<QPushButton*>(QStringLiteral("OK"));
  connect(reason_, &QLineEdit::textChanged, this, [this] { SetAcceptable(acceptable_); });
  SetAcceptable(true);
}

void DecisionDialog::SetAcceptable(bool acceptable) {
  acceptable_ = acceptable;
  ok_->setEnabled(acceptable && !Reason().isEmpty());
}

QSize DecisionDialog::sizeHint() const {
  return QDialog::sizeHint().expandedTo({460, 180});
}

}  // namespace vexa

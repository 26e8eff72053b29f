// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/dialog_buttons.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace vexa {

QPushButton* DialogButton(const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(caption);
  button->setMinimumWidth(96);
  button->setAutoDefault(false);
  return button;
}

QWidget* OkCancelButtons(QDialog& dialog, QPushButton* left) {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(10);
  if (left != nullptr) {
    layout->addWidget(left);
  }
  layout->addStretch();
  QPushButton* ok = DialogButton(QStringLiteral("OK"));
  QPushButton* cancel = DialogButton(QStringLiteral("Cancel"));
  ok->setDefault(true);
  QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  layout->addWidget(ok);
  layout->addWidget(cancel);
  return row;
}

QString OutcomeText(const QDialog& dialog) {
  return dialog.result() == QDialog::Accepted ? QStringLiteral("OK") : QStringLiteral("CANCEL");
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/dialog_buttons.h"

#include <QPushButton>

namespace vexa {

QDialogButtonBox* OkCancelButtons(QDialog& dialog) {
  auto* box = new QDialogButtonBox;
  QPushButton* ok = box->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("OK"));
  ok->setDefault(true);
  box->addButton(QStringLiteral("ｷｬﾝｾﾙ"), QDialogButtonBox::RejectRole)
      ->setObjectName(QStringLiteral("Cancel"));
  QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return box;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/version_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/translation.h"

namespace vexa {

QDialog* MakeVersionDialog(QWidget* parent) {
  auto* dialog = new QDialog(parent);
  dialog->setObjectName(QStringLiteral("VersionDialog"));
  dialog->setWindowTitle(Text::tr("ﾊﾞｰｼﾞｮﾝ"));
  auto* title = new QLabel(QStringLiteral("MERIDOX VEXA-KT"));
  QFont large = title->font();
  large.setPixelSize(20);
  large.setBold(true);
  title->setFont(large);
  auto* version = new QLabel(QStringLiteral("VEXA-KT-440 Ver3.21"));
  auto* buttons = new QDialogButtonBox;
  QPushButton* close = buttons->addButton(Text::tr("閉じる"), QDialogButtonBox::AcceptRole);
  close->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  auto* layout = new QVBoxLayout(dialog);
  layout->setContentsMargins(32, 26, 32, 18);
  layout->setSpacing(8);
  layout->addWidget(title, 0, Qt::AlignHCenter);
  layout->addWidget(version, 0, Qt::AlignHCenter);
  layout->addWidget(new QLabel(Text::tr("顕微反射率測定装置 制御･解析ﾌﾟﾛｸﾞﾗﾑ")), 0,
                    Qt::AlignHCenter);
  layout->addSpacing(12);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  return dialog;
}

}  // namespace vexa

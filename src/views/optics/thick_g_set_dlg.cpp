// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thick_g_set_dlg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <cmath>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"

namespace vexa {

ThickGSetDlg::ThickGSetDlg(const ThicknessScale& scale, bool autoScale, MessageService& messages,
                           QWidget* parent)
    : QDialog(parent),
      messages_(messages),
      scale_(scale),
      minimum_(new NumberField(QStringLiteral("###0"))),
      maximum_(new NumberField(QStringLiteral("###0"))),
      autoScale_(new QCheckBox(Text::tr("自動ｽｹｰﾙ"))) {
  setObjectName(QStringLiteral("ThickGSetDlg"));
  setWindowTitle(Text::tr("膜厚ｸﾞﾗﾌ設定"));
  minimum_->setObjectName(QStringLiteral("Minimum"));
  minimum_->SetValue(scale.minimumNm);
  maximum_->setObjectName(QStringLiteral("Maximum"));
  maximum_->SetValue(scale.maximumNm);
  autoScale_->setObjectName(QStringLiteral("AutoScale"));
  autoScale_->setToolTip(Text::tr("軸の範囲を履歴の値に合わせます。"));
  autoScale_->setChecked(autoScale);
  EnableFields();
  connect(autoScale_, &QCheckBox::toggled, this, [this](bool on) {
    EnableFields();
    if (!on) {
      maximum_->setFocus();
      maximum_->selectAll();
    }
  });

  auto* frame = new QGroupBox(Text::tr("膜厚ｽｹｰﾙ"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(16, 12, 16, 12);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->addWidget(new QLabel(Text::tr("最大値")), 0, 0);
  grid->addWidget(maximum_, 0, 1);
  grid->addWidget(new QLabel(Text::tr("最小値")), 1, 0);
  grid->addWidget(minimum_, 1, 1);
  grid->addWidget(autoScale_, 2, 0, 1, 2);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(frame);
  layout->addWidget(OkCancelButtons(*this));
}

QString ThickGSetDlg::Outcome() const {
  return OutcomeText(*this);
}

void ThickGSetDlg::accept() {
  if (TakeScale()) {
    QDialog::accept();
    return;
  }
  messages_.Tell({Message::kHistoryScaleOutOfRange});
  const std::optional<double> maximum = maximum_->Value();
  EnterAgain(!maximum || *maximum > ThicknessScale::kHighestNm ? *maximum_ : *minimum_);
}

void ThickGSetDlg::EnableFields() {
  minimum_->setEnabled(!autoScale_->isChecked());
  maximum_->setEnabled(!autoScale_->isChecked());
}

bool ThickGSetDlg::TakeScale() {
  const std::optional<double> minimum = minimum_->Value();
  const std::optional<double> maximum = maximum_->Value();
  if (!minimum || !maximum || *minimum < ThicknessScale::kLowestNm ||
      *maximum > ThicknessScale::kHighestNm ||
      std::round(*maximum - *minimum) < ThicknessScale::kSmallestWidthNm) {
    return false;
  }
  scale_ = {*minimum, *maximum};
  return true;
}

}  // namespace vexa

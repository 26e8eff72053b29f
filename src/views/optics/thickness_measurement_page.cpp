// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thickness_measurement_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "views/common/option_frame.h"

namespace vexa {

ThicknessMeasurementPage::ThicknessMeasurementPage(const ThicknessSettings& settings,
                                                   QWidget* parent)
    : QWidget(parent),
      enabled_(new QCheckBox(QStringLiteral("膜厚測定を可能にする"))),
      type_(new QButtonGroup(this)),
      kind_(new QButtonGroup(this)) {
  enabled_->setObjectName(QStringLiteral("ThicknessEnabled"));
  enabled_->setChecked(settings.enabled);
  auto* measurement = new QGroupBox(QStringLiteral("測定設定"));
  auto* inside = new QVBoxLayout(measurement);
  inside->setContentsMargins(16, 12, 16, 12);
  inside->addWidget(enabled_);

  auto* options = new QHBoxLayout;
  options->setSpacing(12);
  options->addWidget(
      OptionFrame(QStringLiteral("測定タイプ"), QStringLiteral("Type"),
                  {QStringLiteral("Type A"), QStringLiteral("Type B"), QStringLiteral("Type C")},
                  *type_, settings.type));
  options->addWidget(OptionFrame(QStringLiteral("膜厚"), QStringLiteral("ThicknessKind"),
                                 {QStringLiteral("物理膜厚"), QStringLiteral("光学膜厚")}, *kind_,
                                 settings.kind));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(12);
  layout->addWidget(measurement);
  layout->addLayout(options);
  layout->addStretch();
}

void ThicknessMeasurementPage::Take(ThicknessSettings& settings) const {
  settings.enabled = enabled_->isChecked();
  settings.type = ChosenOption(*type_, settings.type);
  settings.kind = ChosenOption(*kind_, settings.kind);
}

}  // namespace vexa

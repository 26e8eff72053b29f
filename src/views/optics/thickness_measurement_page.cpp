// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thickness_measurement_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/option_frame.h"

namespace vexa {

ThicknessMeasurementPage::ThicknessMeasurementPage(const ThicknessSettings& settings,
                                                   QWidget* parent)
    : QWidget(parent),
      enabled_(new QCheckBox(Text::tr("膜厚測定を可能にする"))),
      type_(new QButtonGroup(this)),
      kind_(new QButtonGroup(this)) {
  enabled_->setObjectName(QStringLiteral("ThicknessEnabled"));
  enabled_->setToolTip(Text::tr("測定画面に膜厚の欄を出し、干渉の極値から膜厚を計算します。"));
  enabled_->setChecked(settings.enabled);
  auto* measurement = new QGroupBox(Text::tr("測定設定"));
  auto* inside = new QVBoxLayout(measurement);
  inside->setContentsMargins(16, 12, 16, 12);
  inside->addWidget(enabled_);

  auto* options = new QHBoxLayout;
  options->setSpacing(12);
  options->addWidget(
      OptionFrame(Text::tr("測定タイプ"), QStringLiteral("Type"),
                  {QStringLiteral("Type A"), QStringLiteral("Type B"), QStringLiteral("Type C")},
                  *type_, settings.type,
                  {Text::tr("長波長側の隣り合う2個の極小から計算します。"),
                   Text::tr("最初と最後の極大から、その間の極大の数を使って計算します。"),
                   Text::tr("最初と最後の極値から、極大と極小の数を使って計算します。"
                            "基板屈折率とは組み合わせられません。")}));
  options->addWidget(OptionFrame(Text::tr("膜厚"), QStringLiteral("ThicknessKind"),
                                 {Text::tr("物理膜厚"), Text::tr("光学膜厚")}, *kind_,
                                 settings.kind,
                                 {Text::tr("膜の厚さ d を [nm] で示します。"),
                                  Text::tr("屈折率と厚さの積 nd を [nd] で示します。")}));
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/check_settings_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QSpinBox>

#include "base/translation.h"

namespace vexa {

CheckSettingsDialog::CheckSettingsDialog(const CheckSettings& settings, const QString& operatorName,
                                         QWidget* parent)
    : DecisionDialog(
          Text::tr("日常点検の設定"),
          Text::tr("点検する波長を変えると、限界は新しい点検から決め直すことになります。"),
          operatorName, parent),
      holds_(new QCheckBox(Text::tr("異常のときはロットの判定を保留する"))) {
  holds_->setObjectName(QStringLiteral("HoldsVerdicts"));
  holds_->setChecked(settings.holdsVerdicts);
  for (std::size_t i = 0; i < wavelengths_.size(); ++i) {
    auto* nm = new QSpinBox;
    nm->setObjectName(QStringLiteral("CheckWavelength%1").arg(i + 1));
    nm->setLocale(QLocale::c());
    nm->setRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
    nm->setSuffix(QStringLiteral(" nm"));
    nm->setValue(settings.wavelengthsNm[i]);
    wavelengths_[i] = nm;
    Form().insertRow(static_cast<int>(i), Text::tr("波長%1").arg(i + 1), nm);
  }
  Form().insertRow(static_cast<int>(wavelengths_.size()), holds_);
}

CheckSettings CheckSettingsDialog::Settings() const {
  CheckSettings settings;
  for (std::size_t i = 0; i < wavelengths_.size(); ++i) {
    settings.wavelengthsNm[i] = wavelengths_[i]->value();
  }
  settings.holdsVerdicts = holds_->isChecked();
  return settings;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/conditions_group.h"

#include <limits>

#include "base/translation.h"
#include "standards/condition_caption.h"
#include "views/common/theme.h"
#include "views/standards/band_hint.h"

namespace vexa {
namespace {

constexpr int kWavelengthWidth = 64;
constexpr int kHintLines = 2;

std::optional<std::int16_t> Wavelength(const IntegerField& field) {
  using Limits = std::numeric_limits<std::int16_t>;
  const std::optional<int> value = field.Value();
  if (!value || *value < Limits::min() || *value > Limits::max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(*value);
}

}  // namespace

ConditionsGroup::ConditionsGroup() : QGroupBox(Text::tr("反射率を使用する")), hint_(new QLabel) {
  setObjectName(QStringLiteral("useReflectance"));
  setCheckable(true);
  setToolTip(Text::tr("使用する条件の波長の間で、反射率を上限と下限で判定します。"));
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(6);
  int column = 1;
  for (const QString& heading :
       {Text::tr("波長 [nm]"), Text::tr("上限 [%]"), Text::tr("下限 [%]")}) {
    grid->addWidget(new QLabel(heading), 0, column++, Qt::AlignRight);
  }
  rows_.reserve(kConditionCount);
  for (std::size_t index = 0; index < kConditionCount; ++index) {
    AddRow(*grid, index);
  }
  hint_->setObjectName(QStringLiteral("bandHint"));
  hint_->setWordWrap(true);
  hint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  hint_->setMinimumHeight(kHintLines * hint_->fontMetrics().lineSpacing());
  QPalette calm = hint_->palette();
  calm.setColor(QPalette::WindowText, theme::kAccent);
  hint_->setPalette(calm);
  const int below = grid->rowCount();
  grid->addWidget(hint_, below, 0, 1, column);
  grid->setRowStretch(below, 1);
  connect(this, &QGroupBox::toggled, this, &ConditionsGroup::UpdateHint);
}

void ConditionsGroup::AddRow(QGridLayout& grid, std::size_t index) {
  const QString name = QStringLiteral("condition%1").arg(index + 1);
  const Row row{new QCheckBox(ConditionCaption(index)), new IntegerField, RangeFields(name)};
  const QString tip =
      index == 0 ? Text::tr("判定する区間の始まりの波長と、そこでの限界です。")
                 : Text::tr(
                       "前の条件からこの波長までの区間を判定します。限界は前の条件の限界から"
                       "直線で変わります。");
  row.enabled->setObjectName(name);
  row.enabled->setToolTip(tip);
  row.wavelength->setObjectName(name + QStringLiteral("Wavelength"));
  row.wavelength->setFixedWidth(kWavelengthWidth);
  const int line = static_cast<int>(index) + 1;
  int column = 0;
  grid.addWidget(row.enabled, line, column++);
  for (QLineEdit* field :
       {static_cast<QLineEdit*>(row.wavelength), static_cast<QLineEdit*>(row.range.upper),
        static_cast<QLineEdit*>(row.range.lower)}) {
    field->setEnabled(false);
    field->setAccessibleName(ConditionCaption(index));
    field->setToolTip(tip);
    grid.addWidget(field, line, column++, Qt::AlignRight);
    connect(row.enabled, &QCheckBox::toggled, field, &QWidget::setEnabled);
    connect(field, &QLineEdit::textChanged, this, &ConditionsGroup::UpdateHint);
  }
  connect(row.enabled, &QCheckBox::toggled, this, &ConditionsGroup::UpdateHint);
  rows_.push_back(row);
}

void ConditionsGroup::Show(const StandardSet& standard) {
  setChecked(standard.useReflectance);
  shownWavelengths_ = standard.wavelengths;
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    rows_[k].enabled->setChecked(standard.conditions[k].enabled);
    rows_[k].wavelength->SetValue(standard.wavelengths[k]);
    rows_[k].range.Show(standard.conditions[k]);
  }
}

ConditionsGroup::Fault ConditionsGroup::TakeInto(StandardSet& standard) const {
  standard.useReflectance = isChecked();
  Fault fault;
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    const Row& row = rows_[k];
    StandardLimits& condition = standard.conditions[k];
    const std::optional<std::int16_t> wavelength = Wavelength(*row.wavelength);
    condition.enabled = row.enabled->isChecked();
    standard.wavelengths[k] = wavelength.value_or(shownWavelengths_[k]);
    QLineEdit* wrong = row.range.TakeInto(condition);
    if (condition.enabled && !wavelength) {
      wrong = row.wavelength;
    }
    if (isChecked() && wrong != nullptr && fault.field == nullptr) {
      fault = {wrong, k};
    }
  }
  return fault;
}

void ConditionsGroup::UpdateHint() {
  if (rows_.size() < kConditionCount) {
    return;
  }
  StandardSet standard;
  (void)TakeInto(standard);
  hint_->setText(BandHint(standard));
}

}  // namespace vexa

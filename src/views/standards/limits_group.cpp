// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/limits_group.h"

#include <QLabel>

#include "base/translation.h"

namespace vexa {
namespace {

// Places of the grid.
constexpr int kBeside = 3;
constexpr int kBelow = 2;

}  // namespace

LimitsGroup::LimitsGroup(const QString& name, const QString& caption, const QString& unit,
                         const QString& tip)
    : QGroupBox(caption), range_(name), grid_(new QGridLayout(this)) {
  setObjectName(name);
  setCheckable(true);
  setToolTip(tip);
  grid_->setVerticalSpacing(6);
  grid_->setColumnStretch(kBeside, 1);
  grid_->setRowStretch(kBelow + 1, 1);
  const auto add = [this, &unit](int row, const QString& text, RealEntry* field) {
    auto* label = new QLabel(text);
    label->setBuddy(field);
    grid_->addWidget(label, row, 0);
    grid_->addWidget(field, row, 1);
    grid_->addWidget(new QLabel(unit), row, 2);
  };
  add(0, Text::tr("上限"), range_.upper);
  add(1, Text::tr("下限"), range_.lower);
}

void LimitsGroup::AddBelow(QWidget* widget) {
  grid_->addWidget(widget, kBelow, 0, 1, kBeside + 1);
}

void LimitsGroup::AddBeside(QWidget* widget) {
  grid_->addWidget(widget, 0, kBeside, kBelow, 1);
}

void LimitsGroup::Show(const StandardLimits& limits) {
  setChecked(limits.enabled);
  range_.Show(limits);
}

QLineEdit* LimitsGroup::TakeInto(StandardLimits& limits) const {
  limits.enabled = isChecked();
  return range_.TakeInto(limits);
}

}  // namespace vexa

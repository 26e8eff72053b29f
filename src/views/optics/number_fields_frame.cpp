// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/number_fields_frame.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace vexa {

NumberFieldsFrame::NumberFieldsFrame(const Look& look, std::span<const double> values,
                                     QWidget* parent)
    : QGroupBox(look.caption, parent) {
  constexpr int kFieldWidth = 160;
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 12, 16, 12);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(3, 1);
  int row = 0;
  for (const double value : values) {
    auto* field = new NumberField(look.pattern);
    field->setObjectName(values.size() == 1 ? look.fieldName
                                            : look.fieldName + QString::number(row));
    field->setFixedWidth(kFieldWidth);
    field->SetValue(value);
    auto* label = new QLabel(look.labels.value(row));
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(new QLabel(look.unit), row, 2);
    fields_.push_back(field);
    ++row;
  }
}

NumberField& NumberFieldsFrame::FieldAtFault() const {
  const auto fault =
      std::ranges::find_if(fields_, [](const NumberField* field) { return !field->Value(); });
  return **(fault == fields_.end() ? fields_.begin() : fault);
}

bool NumberFieldsFrame::Take(std::span<double> values) const {
  bool allNumbers = true;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    if (const std::optional<double> value = fields_[i]->Value()) {
      values[i] = *value;
    } else {
      allNumbers = false;
    }
  }
  return allNumbers;
}

}  // namespace vexa

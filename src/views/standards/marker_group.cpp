// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/marker_group.h"

#include <QHBoxLayout>
#include <QLabel>

#include "base/translation.h"

namespace vexa {

MarkerGroup::MarkerGroup(const QString& name, const QString& caption, const QString& valueCaption,
                         const QString& tip)
    : QGroupBox(caption),
      shown_(new QCheckBox(Text::tr("表示する"))),
      value_(new RealEntry(name + QStringLiteral("Value"))) {
  setObjectName(name);
  setToolTip(tip);
  shown_->setObjectName(name + QStringLiteral("Shown"));
  auto* label = new QLabel(valueCaption);
  label->setBuddy(value_);
  auto* row = new QHBoxLayout(this);
  row->addWidget(shown_);
  row->addStretch();
  row->addWidget(label);
  row->addWidget(value_);
  label->setEnabled(false);
  value_->setEnabled(false);
  connect(shown_, &QCheckBox::toggled, label, &QWidget::setEnabled);
  connect(shown_, &QCheckBox::toggled, value_, &QWidget::setEnabled);
}

void MarkerGroup::Show(const ReferenceMarker& marker) {
  shown_->setChecked(marker.shown);
  value_->SetValue(marker.value);
}

QLineEdit* MarkerGroup::TakeInto(ReferenceMarker& marker) const {
  marker.shown = shown_->isChecked();
  marker.value = value_->Value().value_or(value_->ValueSet());
  return marker.shown && !value_->Value() ? value_ : nullptr;
}

}  // namespace vexa

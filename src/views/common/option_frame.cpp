// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/option_frame.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace vexa {

QGroupBox* OptionFrame(const QString& caption, const QString& name, const QStringList& options,
                       QButtonGroup& group, std::int16_t chosen, const QStringList& tips) {
  auto* frame = new QGroupBox(caption);
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(16, 12, 16, 12);
  layout->setSpacing(8);
  int number = 0;
  for (const QString& option : options) {
    auto* button = new QRadioButton(option);
    button->setObjectName(name + QString::number(number));
    button->setToolTip(tips.value(number));
    button->setChecked(number == chosen);
    group.addButton(button, number++);
    layout->addWidget(button);
  }
  layout->addStretch();
  TabToChosen(group);
  return frame;
}

// Qt itself does this from the first focus on, too late for the way into the group.
void TabToChosen(QButtonGroup& group) {
  const auto set = [&group] {
    for (QAbstractButton* button : group.buttons()) {
      const bool enters = group.checkedButton() == nullptr || button->isChecked();
      button->setFocusPolicy(enters ? Qt::StrongFocus : Qt::ClickFocus);
    }
  };
  set();
  QObject::connect(&group, &QButtonGroup::buttonToggled, &group, set);
}

std::int16_t ChosenOption(const QButtonGroup& group, std::int16_t otherwise) {
  const int chosen = group.checkedId();
  return chosen < 0 ? otherwise : static_cast<std::int16_t>(chosen);
}

}  // namespace vexa

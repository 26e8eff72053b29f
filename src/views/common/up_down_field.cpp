// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/up_down_field.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace vexa {

UpDownField::UpDownField(int minimum, int maximum, QWidget* parent)
    : QWidget(parent), field_(new IntegerField), minimum_(minimum), maximum_(maximum) {
  const auto arrow = [this](Qt::ArrowType type, const char* name, int by) {
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setArrowType(type);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(22, 15);
    connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
    return button;
  };
  field_->installEventFilter(this);
  setFocusProxy(field_);
  auto* arrows = new QVBoxLayout;
  arrows->setSpacing(0);
  arrows->addWidget(arrow(Qt::UpArrow, "Up", 1));
  arrows->addWidget(arrow(Qt::DownArrow, "Down", -1));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(field_, 1);
  layout->addLayout(arrows);
}

bool UpDownField::eventFilter(QObject* watched, QEvent* event) {
  if (watched == field_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      Step(key == Qt::Key_Up ? 1 : -1);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void UpDownField::Step(int by) {
  field_->SetValue(std::clamp(field_->Value().value_or(minimum_ - by) + by, minimum_, maximum_));
}

}  // namespace vexa

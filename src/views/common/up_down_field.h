// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "views/common/number_field.h"

namespace vexa {

/// A whole number with buttons (and the arrow keys) that change it by 1 within minimum..maximum.
/// Typing is not limited to that range: the window checks it.
class UpDownField : public QWidget {
  Q_OBJECT

 public:
  UpDownField(int minimum, int maximum, QWidget* parent = nullptr);

  [[nodiscard]] IntegerField& Field() { return *field_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Step(int by);

  IntegerField* field_;
  int minimum_;
  int maximum_;
};

}  // namespace vexa

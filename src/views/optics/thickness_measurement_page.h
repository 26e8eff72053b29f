// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QWidget>

#include "measurement/settings.h"

namespace vexa {

/// Whether the thickness is measured, of which type and of which kind.
class ThicknessMeasurementPage : public QWidget {
  Q_OBJECT

 public:
  explicit ThicknessMeasurementPage(const ThicknessSettings& settings, QWidget* parent = nullptr);

  /// Puts the choices into `settings`; a number that none of the options stands for is kept.
  void Take(ThicknessSettings& settings) const;

 private:
  QCheckBox* enabled_;
  QButtonGroup* type_;
  QButtonGroup* kind_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <optional>

#include "measurement/vexatype.h"
#include "views/common/number_field.h"

namespace vexa {

/// Asks for a wavelength to which the cursor is to move.
class JampWave : public QDialog {
  Q_OBJECT

 public:
  /// The view shown decides the unit.
  explicit JampWave(const VEXATYPE& state, QWidget* parent = nullptr);

  /// "OK" or "CANCEL".
  [[nodiscard]] QString Outcome() const;

  /// The number typed, in range or not; nothing when there is none.
  [[nodiscard]] std::optional<int> Wavelength() const { return wavelength_->Value(); }

 private:
  IntegerField* wavelength_;
};

}  // namespace vexa

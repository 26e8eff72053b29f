// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/daily_check_events.h"
#include "views/statistics/decision_dialog.h"

class QCheckBox;
class QSpinBox;

namespace vexa {

/// The settings of the daily check, with the reason for changing them.
class CheckSettingsDialog : public DecisionDialog {
  Q_OBJECT

 public:
  CheckSettingsDialog(const CheckSettings& settings, const QString& operatorName,
                      QWidget* parent = nullptr);

  [[nodiscard]] CheckSettings Settings() const;

 private:
  std::array<QSpinBox*, 3> wavelengths_{};
  QCheckBox* holds_;
};

}  // namespace vexa

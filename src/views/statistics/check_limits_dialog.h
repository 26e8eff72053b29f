// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateEdit>
#include <QLabel>

#include "records/daily_check_events.h"
#include "views/statistics/decision_dialog.h"

namespace vexa {

/// Asks since which day the daily checks set their limits, who decides it, and why. Without days
/// enough it cannot be accepted.
class CheckLimitsDialog : public DecisionDialog {
  Q_OBJECT

 public:
  /// The history must outlive the dialog.
  CheckLimitsDialog(const DailyCheckHistory& history, const CheckConditions& conditions,
                    const QString& operatorName, QWidget* parent = nullptr);

  [[nodiscard]] QDate Since() const { return since_->date(); }

 private:
  void CountDays();

  const DailyCheckHistory& history_;
  CheckConditions conditions_;
  QDateEdit* since_;
  QLabel* days_;
};

}  // namespace vexa

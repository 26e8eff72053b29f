// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <optional>

#include "records/gauge_plan.h"
#include "views/common/number_field.h"

namespace vexa {

class ValueChoice;

/// The entries of a gauge study's plan. Value and tolerance are also those of what is analysed of
/// records.
class GaugePlanEntries : public QGroupBox {
  Q_OBJECT

 public:
  /// `choice` stands above the entries.
  explicit GaugePlanEntries(QWidget* choice);

  /// The plan of a study is settled: it is shown, and only value and tolerance can be changed.
  void ShowSettled(const GaugePlan& plan);
  /// What stands in the entries is free again.
  void Release() { SetSettled(false); }

  /// The plan as entered, without times and seed; nothing, and the entries say why, when there is
  /// none.
  [[nodiscard]] std::optional<GaugePlan> Take();

  [[nodiscard]] RecordValue Value() const;
  /// Nothing but a number above 0.
  [[nodiscard]] std::optional<double> Tolerance() const;

 signals:
  void MakeRequested();

 private:
  void SetSettled(bool settled);

  QLineEdit* name_;
  ValueChoice* value_;
  QSpinBox* parts_;
  QLineEdit* operators_;
  QSpinBox* repeats_;
  NumberField* tolerance_;
  QLabel* refusal_;
  QPushButton* make_;
};

}  // namespace vexa

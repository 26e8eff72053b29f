// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGridLayout>
#include <QGroupBox>

#include "views/standards/range_fields.h"

namespace vexa {

/// One group of a standard: its caption with the tick that switches it on, and its two limits.
class LimitsGroup : public QGroupBox {
  Q_OBJECT

 public:
  /// `unit` stands behind each field; `tip` says what is judged.
  LimitsGroup(const QString& name, const QString& caption, const QString& unit, const QString& tip);

  /// A line of its own below the limits.
  void AddBelow(QWidget* widget);
  /// At the right of both limits.
  void AddBeside(QWidget* widget);

  void Show(const StandardLimits& limits);
  [[nodiscard]] const RangeFields& Fields() const { return range_; }
  /// See RangeFields.
  [[nodiscard]] QLineEdit* TakeInto(StandardLimits& limits) const;

 private:
  RangeFields range_;
  QGridLayout* grid_;
};

}  // namespace vexa

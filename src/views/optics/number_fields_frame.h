// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QStringList>
#include <span>
#include <vector>

#include "views/common/number_field.h"

namespace vexa {

/// A frame of labelled number fields.
class NumberFieldsFrame : public QGroupBox {
  Q_OBJECT

 public:
  struct Look {
    QString caption;
    QStringList labels;
    QString pattern;    ///< of the numbers, as FormatNumber takes it
    QString fieldName;  ///< of the field; of several, with the place 0, 1, ... behind it
    QString unit;
  };

  /// `values` holds a number for each label.
  NumberFieldsFrame(const Look& look, std::span<const double> values, QWidget* parent = nullptr);

  /// The first field whose text is no number; without one, the first of all.
  [[nodiscard]] NumberField& FieldAtFault() const;

  /// Puts the numbers into `values`. False when a text is no number; its value stays as it was.
  [[nodiscard]] bool Take(std::span<double> values) const;

 private:
  std::vector<NumberField*> fields_;
};

}  // namespace vexa

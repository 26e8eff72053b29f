// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <vector>

#include "standards/standard_set.h"
#include "views/common/number_field.h"
#include "views/standards/range_fields.h"

namespace vexa {

/// The ten conditions of the reflectance, with a remark below where they test less than it seems.
class ConditionsGroup : public QGroupBox {
  Q_OBJECT

 public:
  ConditionsGroup();

  void Show(const StandardSet& standard);

  [[nodiscard]] QLineEdit* WavelengthField(std::size_t condition) const {
    return rows_[condition].wavelength;
  }
  [[nodiscard]] const RangeFields& Fields(std::size_t condition) const {
    return rows_[condition].range;
  }

  /// An entry that should be a number and is none, and the condition it belongs to.
  struct Fault {
    QLineEdit* field = nullptr;
    std::size_t condition = 0;
  };

  /// Takes the entries over, likewise to RangeFields. A fault without a field is none.
  [[nodiscard]] Fault TakeInto(StandardSet& standard) const;

 private:
  struct Row {
    QCheckBox* enabled;
    IntegerField* wavelength;
    RangeFields range;
  };

  void AddRow(QGridLayout& grid, std::size_t index);
  void UpdateHint();

  std::vector<Row> rows_;
  std::array<std::int16_t, kConditionCount> shownWavelengths_{};
  QLabel* hint_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>

#include "records/record_value.h"
#include "views/common/place_choice.h"

namespace vexa {

/// Which value, at which wavelength where it has one.
class ValueChoice : public QWidget {
  Q_OBJECT

 public:
  /// A colour difference to the target of a recipe is offered only `withTarget`.
  explicit ValueChoice(bool withTarget, QWidget* parent = nullptr);

  [[nodiscard]] RecordValue Value() const;
  void SetValue(const RecordValue& value);

 signals:
  void Changed();

 private:
  QComboBox* quantity_;
  QSpinBox* nm_;
};

/// Of which records: store, recipe, lot, operator, and days. An empty field does not restrict.
class SeriesFilter : public QWidget {
  Q_OBJECT

 public:
  /// `today` is the last day of the range that stands in the fields at first; `withShared`: the
  /// shared store can be chosen, too.
  SeriesFilter(const QDate& today, bool withShared, QWidget* parent = nullptr);

  [[nodiscard]] RecordPlace Place() const { return place_->Place(); }
  [[nodiscard]] RecordQuery Query(int limit) const;
  /// What restricts, for a caption: "ロット A-1   2026/10/01 - 2026/11/22".
  [[nodiscard]] QString Description() const;

 signals:
  void Changed();

 private:
  PlaceChoice* place_;
  QLineEdit* recipe_;
  QLineEdit* lot_;
  QLineEdit* operator_;
  QCheckBox* days_;
  QDateEdit* from_;
  QDateEdit* to_;
};

}  // namespace vexa

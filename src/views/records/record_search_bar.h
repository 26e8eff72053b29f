// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

#include "views/common/place_choice.h"

namespace vexa {

/// The fields that say which records are wanted. A field that is left empty does not restrict.
class RecordSearchBar : public QWidget {
  Q_OBJECT

 public:
  /// `withShared`: the shared store can be chosen, too.
  explicit RecordSearchBar(bool withShared, QWidget* parent = nullptr);

  [[nodiscard]] RecordQuery Query(const QDate& today) const;
  [[nodiscard]] RecordPlace Place() const;

 signals:
  /// The button or Return in a field was pressed, or a choice made.
  void SearchRequested();

 private:
  QLineEdit* AddField(const char* name);

  QComboBox* period_;
  QDateEdit* from_;
  QDateEdit* to_;
  QComboBox* verdict_;
  PlaceChoice* place_;
  QCheckBox* superseded_;
  QLineEdit* lot_;
  QLineEdit* recipe_;
  QLineEdit* sample_;
  QLineEdit* operator_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include "records/whole_record.h"
#include "views/common/plot.h"

namespace vexa {

/// The reflectance of several records drawn over each other, one of them with a heavier line.
/// PlotNavigation zooms and moves.
class RecordGraph : public Plot {
  Q_OBJECT

 public:
  explicit RecordGraph(QWidget* parent = nullptr);

  /// `heavy` is the id of the record that stands out; empty for none.
  void Show(const QList<WholeRecord>& records, const QString& heavy);

 private:
  void ShowFullView();

  double largest_ = 0.0;
};

}  // namespace vexa

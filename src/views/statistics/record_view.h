// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "records/store_fault.h"
#include "records/whole_record.h"

class QTableWidget;

namespace vexa {

class Plot;

/// The spectrum of one record, and what is known of it.
class RecordView : public QWidget {
  Q_OBJECT

 public:
  explicit RecordView(QWidget* parent = nullptr);

  void Show(const WholeRecord& record);
  /// Why there is no record to be seen.
  void Show(StoreFault fault);
  void Clear();

 private:
  Plot* plot_;
  QTableWidget* details_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTableWidget>

#include "measurement/settings.h"
#include "measurement/vexatype.h"
#include "records/whole_record.h"

namespace vexa {

/// Records computed anew from their counts under settings: the new values beside the stored ones.
/// Nothing is kept; the rows can be copied. With `cie` the CIE colours stand beside the
/// instrument's own.
class RecomputedWindow : public QDialog {
  Q_OBJECT

 public:
  RecomputedWindow(const QList<WholeRecord>& records, const Settings& settings, bool cie,
                   QWidget* parent = nullptr);

 private:
  void AddRow(const WholeRecord& record, const SampleRecord& anew, bool cie);
  void CopyTable() const;

  QTableWidget* table_;
};

}  // namespace vexa

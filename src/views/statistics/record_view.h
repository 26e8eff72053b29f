// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "records/record_source.h"

class QTableWidget;

namespace vexa {

class Plot;

/// The spectrum of one record, and what is known of it.
class RecordView : public QWidget {
  Q_OBJECT

 public:
  explicit RecordView(QWidget* parent = nullptr);

  /// The record of this id; a fault is shown in its place.
  void Show(const RecordSource& source, const QString& id);
  void Clear();

 private:
  Plot* plot_;
  QTableWidget* details_;
};

}  // namespace vexa

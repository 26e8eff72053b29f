// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTableWidget>
#include <QWidget>

#include "views/lot/lot_run.h"

namespace vexa {

/// Beside the verdict: what is measured, the yield so far, the last ten lenses, and the ages of
/// background and reference.
class LotSide : public QWidget {
  Q_OBJECT

 public:
  explicit LotSide(QWidget* parent = nullptr);

  void Show(const LotRun& run, const Session& session);

 private:
  void ShowLast(const LotRun& run);

  QLabel* identity_;
  QLabel* yield_;
  QLabel* counts_;
  QTableWidget* last_;
  QLabel* frames_;
};

}  // namespace vexa

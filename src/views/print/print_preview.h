// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "views/paper/print_settings.h"
#include "views/paper/printed_pages.h"

class QLabel;
class QPrintPreviewWidget;
class QPushButton;

namespace vexa {

/// Shows pages as they will be printed, one at a time.
class PrintPreview : public QDialog {
  Q_OBJECT

 public:
  PrintPreview(const PrintSettings& settings, const PageMaker& pages, QWidget* parent = nullptr);

 private:
  void ShowPlace();

  QPrintPreviewWidget* preview_;
  QPushButton* back_;
  QPushButton* next_;
  QLabel* place_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QRectF>
#include <functional>

#include "measurement/vexatype.h"

namespace vexa {

/// Lists all settings as they are when the window is made.
class table : public QDialog {
  Q_OBJECT

 public:
  using Paint = std::function<void(QPainter& painter, const QRectF& page)>;
  /// Has a page painted on a printer.
  using Print = std::function<void(const Paint& paint)>;

  table(const VEXATYPE& state, const Print& print, QWidget* parent = nullptr);

 private:
  void PaintImage(QPainter& painter, const QRectF& page);

  QWidget* list_ = nullptr;
};

}  // namespace vexa

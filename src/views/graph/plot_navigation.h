// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

/// Zoom and pan in a plot, to the left and right within a range: wheel and drag, the keys "+" and
/// "-", Ctrl with an arrow. A double click
/// or Home asks for the full view again. The plot itself redraws with what it knows of its ranges.
class PlotNavigation : public QObject {
  Q_OBJECT

 public:
  /// Belongs to the plot, whose horizontal axis stays within `widest`.
  PlotNavigation(QCustomPlot& plot, const QCPRange& widest);

 signals:
  /// The user zooms or moves; comes before the plot is drawn so.
  void Navigated();
  void FullViewRequested();
  /// A left click inside the axes that was no drag, at this place of the widget.
  void Clicked(QPointF position);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool HandleKey(const QKeyEvent& event);
  void Zoom(double factor);
  void Move(double horizontalPart, double verticalPart);
  [[nodiscard]] bool IsDrag(const QMouseEvent& event) const;

  QCustomPlot& plot_;
  QPointF pressedAt_;
};

}  // namespace vexa

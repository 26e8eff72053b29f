// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

/// What all graphs of the program share: the look (a closed frame, a pale grid, inner ticks), no
/// painting before they are shown, and layers that are painted again alone.
class Plot : public QCustomPlot {
  Q_OBJECT

 protected:
  explicit Plot(QWidget* parent);

  /// Puts the legend into a row of its own above the axes, at most `columns` entries wide, so that
  /// it never covers a curve.
  void PlaceLegendAbove(int columns);

  /// Paints a buffered layer again; with the whole graph, later, when that is to be painted anyway.
  void RepaintLayer(const QString& name);

  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace vexa

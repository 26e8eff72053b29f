// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

class FittedLegend;

/// The layer of what guides the user on the screen alone: pictures leave it out.
inline constexpr const char* kCursorLayer = "cursor";

/// What all graphs of the program share: the look (a closed frame, a pale grid, inner ticks), no
/// painting before they are shown, and layers that are painted again alone.
class Plot : public QCustomPlot {
  Q_OBJECT

 protected:
  explicit Plot(QWidget* parent);

  /// Gives further axes the look of the first ones.
  void StyleAxes(QCPAxisRect& rect);

  /// Makes the cursor's layer, the topmost one, which is painted again alone.
  void AddCursorLayer();

  /// Makes the legend a FittedLegend above the axes, so that it never covers a curve.
  FittedLegend* PlaceLegendAbove();

  /// Paints a buffered layer again; with the whole graph, later, when that is to be painted anyway.
  void RepaintLayer(const QString& name);

  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace vexa

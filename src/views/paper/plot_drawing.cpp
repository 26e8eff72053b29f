// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/plot_drawing.h"

#include <qcustomplot.h>

#include <QPicture>

namespace vexa {

QPicture PlotDrawing(QCustomPlot& plot, const QSize& size) {
  QPicture picture;
  QCPPainter recorder;
  recorder.begin(&picture);
  recorder.setMode(QCPPainter::pmVectorized);
  recorder.setMode(QCPPainter::pmNoCaching);
  plot.toPainter(&recorder, size.width(), size.height());
  recorder.end();
  return picture;
}

void PlayDrawing(QPainter& painter, const QPointF& corner, double scale, const QPicture& picture) {
  painter.save();
  painter.translate(corner);
  // A picture is played larger on a finer device; the painter's scale has seen to that already.
  scale *= static_cast<double>(picture.logicalDpiX()) / painter.device()->logicalDpiX();
  painter.scale(scale, scale);
  painter.drawPicture(QPointF(), picture);
  painter.restore();
}

}  // namespace vexa

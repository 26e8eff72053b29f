// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/plot_picture.h"

#include <qcustomplot.h>

namespace vexa {

QPicture PlotPicture(QCustomPlot& plot, const QSize& size) {
  QPicture picture;
  QCPPainter recorder;
  recorder.begin(&picture);
  recorder.setMode(QCPPainter::pmVectorized);
  recorder.setMode(QCPPainter::pmNoCaching);
  plot.toPainter(&recorder, size.width(), size.height());
  recorder.end();
  return picture;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/plot.h"

#include "views/common/fitted_legend.h"
#include "views/common/theme.h"

namespace vexa {

Plot::Plot(QWidget* parent) : QCustomPlot(parent) {
  // Every added layer makes a paint buffer of this size: a dot, until the plot has its place.
  setViewport({0, 0, 1, 1});
  setLocale(QLocale::c());
  setBackground(theme::kPanel);
  StyleAxes(*axisRect());
}

void Plot::StyleAxes(QCPAxisRect& rect) {
  rect.setupFullAxesBox(true);
  const QPen axisPen(theme::kMutedText, 1.0);
  const QPen gridPen(theme::kGrid, 1.0);
  for (QCPAxis* axis : rect.axes()) {
    axis->setBasePen(axisPen);
    axis->setTickPen(axisPen);
    axis->setSubTickPen(axisPen);
    axis->setTickLength(5, 0);
    axis->setSubTickLength(3, 0);
    axis->setTickLabelColor(theme::kText);
    axis->setTickLabelFont(font());
    axis->setLabelColor(theme::kText);
    axis->setLabelFont(font());
    axis->grid()->setPen(gridPen);
    axis->grid()->setZeroLinePen(gridPen);
  }
}

void Plot::AddCursorLayer() {
  addLayer(QLatin1String(kCursorLayer), layer(QStringLiteral("overlay")), limAbove);
  layer(QLatin1String(kCursorLayer))->setMode(QCPLayer::lmBuffered);
}

FittedLegend* Plot::PlaceLegendAbove() {
  delete legend;
  auto* fitted = new FittedLegend;
  legend = fitted;
  legend->setVisible(false);
  plotLayout()->insertRow(0);
  // Beside an element that takes the rest, so that an empty legend does not squeeze the axes.
  auto* row = new QCPLayoutGrid;
  plotLayout()->addElement(0, 0, row);
  row->addElement(0, 0, legend);
  row->addElement(0, 1, new QCPLayoutElement);
  row->setColumnStretchFactor(0, 0.001);
  plotLayout()->setRowStretchFactor(0, 0.001);
  plotLayout()->setRowSpacing(0);
  legend->setLayer(QStringLiteral("legend"));
  legend->setFont(font());
  legend->setTextColor(theme::kText);
  legend->setBorderPen(Qt::NoPen);
  legend->setBrush(Qt::NoBrush);
  legend->setIconSize(28, 14);
  legend->setRowSpacing(0);
  legend->setColumnSpacing(18);
  legend->setMargins(QMargins(56, 8, 12, 0));
  return fitted;
}

void Plot::RepaintLayer(const QString& name) {
  if (hasInvalidatedPaintBuffers()) {
    replot(rpQueuedReplot);
  } else {
    layer(name)->replot();
  }
}

void Plot::resizeEvent(QResizeEvent* event) {
  if (isVisible()) {
    QCustomPlot::resizeEvent(event);
  } else {
    setViewport(rect());
    replot(rpQueuedReplot);
  }
}

}  // namespace vexa

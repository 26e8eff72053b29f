// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/plot_style.h"

#include "views/common/theme.h"

namespace vexa {

void ApplyPlotStyle(QCustomPlot& plot) {
  plot.setLocale(QLocale::c());
  plot.setBackground(theme::kPanel);
  plot.axisRect()->setupFullAxesBox(true);
  const QPen axisPen(theme::kMutedText, 1.0);
  const QPen gridPen(theme::kGrid, 1.0);
  for (QCPAxis* axis : {plot.xAxis, plot.yAxis, plot.xAxis2, plot.yAxis2}) {
    axis->setBasePen(axisPen);
    axis->setTickPen(axisPen);
    axis->setSubTickPen(axisPen);
    axis->setTickLength(5, 0);
    axis->setSubTickLength(3, 0);
    axis->setTickLabelColor(theme::kText);
    axis->setTickLabelFont(plot.font());
    axis->setLabelColor(theme::kText);
    axis->setLabelFont(plot.font());
    axis->grid()->setPen(gridPen);
    axis->grid()->setZeroLinePen(gridPen);
  }
  plot.legend->setFont(plot.font());
  plot.legend->setTextColor(theme::kText);
  plot.legend->setBorderPen(QPen(theme::kBorder, 1.0));
  plot.legend->setBrush(QColor(255, 255, 255, 230));
  plot.legend->setIconSize(28, 14);
  plot.legend->setRowSpacing(0);
}

void PlaceLegendAbove(QCustomPlot& plot, int columns) {
  plot.plotLayout()->insertRow(0);
  // Beside an element that takes the rest, so that an empty legend does not squeeze the axes.
  auto* row = new QCPLayoutGrid;
  plot.plotLayout()->addElement(0, 0, row);
  row->addElement(0, 0, plot.legend);
  row->addElement(0, 1, new QCPLayoutElement);
  row->setColumnStretchFactor(0, 0.001);
  plot.plotLayout()->setRowStretchFactor(0, 0.001);
  plot.plotLayout()->setRowSpacing(0);
  plot.legend->setFillOrder(QCPLegend::foColumnsFirst);
  plot.legend->setWrap(columns);
  plot.legend->setBorderPen(Qt::NoPen);
  plot.legend->setColumnSpacing(18);
  plot.legend->setMargins(QMargins(56, 8, 12, 0));
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_panel.h"

#include <qcustomplot.h>

#include <QGridLayout>
#include <QVBoxLayout>

#include "views/common/plot_style.h"

namespace vexa {
namespace {

constexpr int kWidth = 296;
constexpr double kXyEnd = 0.8;

}  // namespace

ColourPanel::ColourPanel(QWidget* parent) : QWidget(parent) {
  setFixedWidth(kWidth);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(8);
  layout->addWidget(BuildDiagram());
  layout->addWidget(BuildValues());

}

QWidget* ColourPanel::BuildDiagram() {
  auto* group = new QGroupBox(QStringLiteral("色度図"));
  auto* plot = new QCustomPlot;
  plot->setObjectName(QStringLiteral("ChromaticityDiagram"));
  ApplyPlotStyle(*plot);
  plot->xAxis->setRange(0.0, kXyEnd);
  plot->yAxis->setRange(0.0, kXyEnd);
  plot->xAxis->setLabel(QStringLiteral("x"));
  plot->yAxis->setLabel(QStringLiteral("y"));
  plot->setFixedHeight(kWidth - 20);
  auto* layout = new QVBoxLayout(group);
  layout->setContentsMargins(6, 4, 6, 6);
  layout->addWidget(plot);
  return group;
}

QWidget* ColourPanel::BuildValues() {
  auto* group = new QGroupBox;
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(10, 8, 10, 8);
  grid->setVerticalSpacing(6);
  grid->setColumnStretch(1, 1);
  int row = 0;
  for (const QString& caption :
       {QStringLiteral("視野:"), QStringLiteral("光源:"), QStringLiteral("x :"),
        QStringLiteral("y :"), QStringLiteral("Y :"), QStringLiteral("平均反射率"),
        QStringLiteral("視感反射率")}) {
    auto* value = new QLabel(QStringLiteral("-"));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(value, row++, 1);
  }
  auto* accumulate = new QCheckBox(QStringLiteral("累積表示"));
  accumulate->setEnabled(false);
  grid->addWidget(accumulate, row, 0, 1, 2);
  return group;
}

}  // namespace vexa

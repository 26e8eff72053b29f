// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/spread_drawing.h"

#include "views/common/theme.h"

namespace vexa {
namespace {

const QString kAreaLayer = QStringLiteral("spread");
const QString kMeanLayer = QStringLiteral("mean");
constexpr int kEnvelopeAlpha = 28;
constexpr int kDeviationAlpha = 60;

}  // namespace

SpreadDrawing::SpreadDrawing(QCustomPlot& plot, Abscissa abscissa)
    : plot_(plot), abscissa_(abscissa) {
  plot_.addLayer(kAreaLayer, plot_.currentLayer(), QCustomPlot::limBelow);
  plot_.addLayer(kMeanLayer, plot_.currentLayer(), QCustomPlot::limAbove);
  areas_ = plot_.layer(kAreaLayer);
  mean_ = plot_.layer(kMeanLayer);
}

void SpreadDrawing::Show(const statistics::SpectrumStatistics* spread) {
  for (QCPGraph* line : lines_) {
    plot_.removeGraph(line);
  }
  lines_.clear();
  if (spread == nullptr) {
    return;
  }
  const ReflectanceSpectrum none;
  AddArea(AddLine(spread->lower, none, 0.0, areas_), AddLine(spread->upper, none, 0.0, areas_),
          kEnvelopeAlpha);
  AddArea(AddLine(spread->mean, spread->s, -1.0, areas_),
          AddLine(spread->mean, spread->s, 1.0, areas_), kDeviationAlpha);
  AddLine(spread->mean, none, 0.0, mean_)->setPen(QPen(theme::kText, 1.8));
}

QCPGraph* SpreadDrawing::AddLine(const ReflectanceSpectrum& base,
                                 const ReflectanceSpectrum& deviation, double factor,
                                 QCPLayer* layer) {
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount));
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    points.append({AbscissaOf(abscissa_, nm), base[nm] + factor * deviation[nm]});
  }
  QCPGraph* line = plot_.addGraph();
  line->removeFromLegend();
  line->setLayer(layer);
  line->setPen(Qt::NoPen);
  line->setSelectable(QCP::stNone);
  line->data()->set(points, abscissa_ == Abscissa::kWavelength);
  lines_.push_back(line);
  return line;
}

void SpreadDrawing::AddArea(QCPGraph* lower, QCPGraph* upper, int alpha) {
  QColor area = theme::kText;
  area.setAlpha(alpha);
  upper->setBrush(area);
  upper->setChannelFillGraph(lower);
}

}  // namespace vexa

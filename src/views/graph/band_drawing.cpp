// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/band_drawing.h"

#include <algorithm>
#include <cmath>

#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kAreaAlpha = 22;
constexpr qreal kLineWidth = 1.2;
constexpr double kBarWidth = 14.0;
// A mark of this size draws its path as it stands; others scale it.
constexpr double kPathSize = 6.0;
const QString kLayer = QStringLiteral("band");

QPen LimitPen() {
  return {theme::kMutedText, kLineWidth, Qt::DashLine};
}

}  // namespace

BandDrawing::BandDrawing(QCustomPlot& plot, Abscissa abscissa) : plot_(plot), abscissa_(abscissa) {
  plot_.addLayer(kLayer, plot_.currentLayer(), QCustomPlot::limBelow);
  layer_ = plot_.layer(kLayer);
}

void BandDrawing::Show(const std::vector<std::vector<BandPoint>>& band) {
  for (QCPGraph* line : lines_) {
    plot_.removeGraph(line);
  }
  lines_.clear();
  highest_ = 0.0;
  for (const std::vector<BandPoint>& segment : band) {
    for (const BandPoint& end : {segment.front(), segment.back()}) {
      if (std::isfinite(end.upper)) {
        highest_ = std::max(highest_, end.upper);
      }
    }
    if (segment.size() == 1) {
      AddBar(segment.front());
    } else {
      AddSegment(segment);
    }
  }
}

QCPGraph* BandDrawing::AddLine(const QVector<QCPGraphData>& points) {
  QCPGraph* line = plot_.addGraph();
  line->removeFromLegend();
  line->setLayer(layer_);
  line->setPen(LimitPen());
  line->data()->set(points, abscissa_ == Abscissa::kWavelength);
  line->setSelectable(QCP::stNone);
  lines_.push_back(line);
  return line;
}

void BandDrawing::AddSegment(const std::vector<BandPoint>& segment) {
  QVector<QCPGraphData> lowest;
  QVector<QCPGraphData> highest;
  for (const BandPoint& point : segment) {
    lowest.append({AbscissaOf(abscissa_, point.nm), point.lower});
    highest.append({AbscissaOf(abscissa_, point.nm), point.upper});
  }
  QCPGraph* lower = AddLine(lowest);
  QCPGraph* upper = AddLine(highest);
  QColor area = theme::kAccent;
  area.setAlpha(kAreaAlpha);
  upper->setBrush(area);
  upper->setChannelFillGraph(lower);
}

void BandDrawing::AddBar(const BandPoint& point) {
  const double place = AbscissaOf(abscissa_, point.nm);
  QCPGraph* bar = AddLine({{place, point.lower}, {place, point.upper}});
  QPainterPath end;
  end.moveTo(-kPathSize / 2.0, 0.0);
  end.lineTo(kPathSize / 2.0, 0.0);
  bar->setScatterStyle(QCPScatterStyle(end, QPen(theme::kMutedText, 1.0), Qt::NoBrush, kBarWidth));
}

}  // namespace vexa

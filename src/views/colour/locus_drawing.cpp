// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/locus_drawing.h"

#include <algorithm>
#include <array>

#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr std::array kLabelledNm{460, 480, 500, 540, 560, 580, 600, 620};
constexpr double kDotSize = 5.0;
const QString kLayer = QStringLiteral("main");

// A place between two points of the locus, `part` of the way, on a Catmull-Rom spline through their
// neighbours too.
double Between(double before, double from, double to, double after, double part) {
  return from + 0.5 * part *
                    (to - before +
                     part * (2.0 * before - 5.0 * from + 4.0 * to - after +
                             part * (3.0 * (from - to) + after - before)));
}

// The locus as a curve, without corners where its points are far apart.
QVector<QPointF> SmoothCurve(const std::vector<LocusPoint>& points) {
  constexpr int kPieces = 5;
  const std::size_t last = points.size() - 1;
  QVector<QPointF> curve;
  for (std::size_t i = 0; i < last; ++i) {
    const Chromaticity& before = points[i > 0 ? i - 1 : 0].at;
    const Chromaticity& from = points[i].at;
    const Chromaticity& to = points[i + 1].at;
    const Chromaticity& after = points[std::min(i + 2, last)].at;
    for (int piece = 0; piece < kPieces; ++piece) {
      const double part = static_cast<double>(piece) / kPieces;
      curve.append({Between(before.x, from.x, to.x, after.x, part),
                    Between(before.y, from.y, to.y, after.y, part)});
    }
  }
  curve.append({points[last].at.x, points[last].at.y});
  return curve;
}

}  // namespace

LocusDrawing::LocusDrawing(QCustomPlot& plot, const QFont& labelFont)
    : plot_(plot),
      labelFont_(labelFont),
      curve_(new QCPCurve(plot.xAxis, plot.yAxis)),
      dots_(new QCPCurve(plot.xAxis, plot.yAxis)) {
  curve_->setLayer(kLayer);
  curve_->setPen(QPen(theme::kText, 1.2));
  dots_->setLayer(kLayer);
  dots_->setLineStyle(QCPCurve::lsNone);
  dots_->setScatterStyle({QCPScatterStyle::ssDisc, theme::kText, kDotSize});
}

void LocusDrawing::Show(const std::vector<LocusPoint>& points) {
  curve_->data()->clear();
  dots_->data()->clear();
  for (QCPItemText* label : labels_) {
    plot_.removeItem(label);
  }
  labels_.clear();
  if (points.empty()) {
    return;
  }
  for (const QPointF& point : SmoothCurve(points)) {
    curve_->addData(point.x(), point.y());
  }
  curve_->addData(points.front().at.x, points.front().at.y);
  for (const LocusPoint& point : points) {
    if (std::ranges::find(kLabelledNm, point.nm) != kLabelledNm.end()) {
      dots_->addData(point.at.x, point.at.y);
      AddLabel(point);
    }
  }
}

void LocusDrawing::ShowLabels(bool shown) {
  for (QCPItemText* label : labels_) {
    label->setVisible(shown);
  }
}

// Short wavelengths have their label on the outer side, at the left; 500 nm has no room there.
void LocusDrawing::AddLabel(const LocusPoint& point) {
  auto* label = new QCPItemText(&plot_);
  label->setLayer(kLayer);
  label->setText(QString::number(point.nm));
  label->setFont(labelFont_);
  label->setColor(theme::kMutedText);
  label->setPadding(QMargins(5, 0, 5, 0));
  label->setClipToAxisRect(false);  // in a small diagram the leftmost reach out of the axes
  label->setPositionAlignment((point.nm < 500 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  label->position->setCoords(point.at.x, point.at.y);
  labels_.push_back(label);
}

}  // namespace vexa

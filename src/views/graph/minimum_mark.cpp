// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/minimum_mark.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "views/common/theme.h"
#include "views/graph/view_table.h"

namespace vexa {
namespace {

/// Text with a thin light edge: readable over a curve, which stays as it is beside the letters.
class EdgedText : public QCPItemText {
 public:
  using QCPItemText::QCPItemText;

 protected:
  void draw(QCPPainter* painter) override {
    const QColor colour = color();
    setColor(theme::kPanel);
    for (const QPointF by :
         {QPointF(-1.0, 0.0), QPointF(1.0, 0.0), QPointF(0.0, -1.0), QPointF(0.0, 1.0)}) {
      painter->save();
      painter->translate(by);
      QCPItemText::draw(painter);
      painter->restore();
    }
    setColor(colour);
    QCPItemText::draw(painter);
  }
};

}  // namespace

MinimumMark::MinimumMark(QCustomPlot& plot, Abscissa abscissa)
    : plot_(plot),
      abscissa_(abscissa),
      point_(new QCPItemTracer(&plot)),
      text_(new EdgedText(&plot)) {
  constexpr double kSize = 8.0;
  point_->setStyle(QCPItemTracer::tsCircle);
  point_->setSize(kSize);
  point_->setPen(QPen(theme::kText, 1.5));
  point_->setSelectable(false);
  // Above the curves, whose layer keeps the order in which they were made.
  const QString overlay = QStringLiteral("overlay");
  text_->setLayer(overlay);
  point_->setLayer(overlay);
  text_->setObjectName(QStringLiteral("Minimum"));
  text_->setFont(plot.font());
  text_->setColor(theme::kText);
  text_->setSelectable(false);
  text_->setClipToAxisRect(true);
  // Where there is room is known once all axes have their places.
  QObject::connect(&plot, &QCustomPlot::afterLayout, text_, [this] {
    if (text_->visible()) {
      PutTextWhereLeastIs();
    }
  });
  Show(nullptr);
}

void MinimumMark::Show(const ReflectanceSpectrum* spectrum) {
  int lowest = 0;
  for (int nm = ReflectanceSpectrum::kFirstNm; spectrum && nm <= ReflectanceSpectrum::kLastNm;
       ++nm) {
    const bool shown = plot_.xAxis->range().contains(AbscissaOf(abscissa_, nm));
    if (shown && (lowest == 0 || (*spectrum)[nm] < (*spectrum)[lowest])) {
      lowest = nm;
    }
  }
  point_->setVisible(lowest != 0);
  text_->setVisible(lowest != 0);
  if (lowest == 0) {
    return;
  }
  const double place = AbscissaOf(abscissa_, lowest);
  const double value = (*spectrum)[lowest];
  point_->position->setCoords(place, value);
  text_->position->setCoords(place, value);
  text_->setText(
      QStringLiteral("Min %1 nm  %2 %").arg(lowest).arg(FormatNumber(value, kReflectancePattern)));
}

// What the curves draw within a part of the plot, in pixels.
QVector<QPointF> MinimumMark::CurvePoints(const QRectF& around) const {
  QVector<QPointF> points;
  for (int i = 0; i < plot_.graphCount(); ++i) {
    const QCPGraph* curve = plot_.graph(i);
    const auto [least, most] = std::minmax(
        {plot_.xAxis->pixelToCoord(around.left()), plot_.xAxis->pixelToCoord(around.right())});
    const auto end = curve->data()->findEnd(most);
    for (auto data = curve->data()->findBegin(least); data != end; ++data) {
      const QPointF point = curve->coordsToPixels(data->key, data->value);
      if (around.contains(point)) {
        points << point;
      }
    }
  }
  return points;
}

// Below, where nothing of the marked curve is, and away from the nearer side first; elsewhere when
// fewer points of the curves are there.
void MinimumMark::PutTextWhereLeastIs() {
  constexpr int kBeside = 4;
  constexpr std::array<int, 3> kDistances{8, 28, 48};
  const QRectF plot = plot_.axisRect()->rect();
  const QPointF mark = text_->position->pixelPosition();
  const QSizeF size = QFontMetricsF(text_->font()).size(0, text_->text());
  const double reach = kDistances.back() + size.height();
  const QVector<QPointF> points = CurvePoints({mark.x() - size.width() - kBeside, mark.y() - reach,
                                               2.0 * (size.width() + kBeside), 2.0 * reach});
  const bool leftFirst = mark.x() > plot.center().x();
  qsizetype fewest = points.size() + 1;
  for (const int distance : kDistances) {
    for (const bool below : {true, false}) {
      for (const bool left : {leftFirst, !leftFirst}) {
        const QRectF box(QPointF(left ? mark.x() - kBeside - size.width() : mark.x() + kBeside,
                                 below ? mark.y() + distance : mark.y() - distance - size.height()),
                         size);
        const auto here = std::ranges::count_if(
            points, [&box](const QPointF& point) { return box.contains(point); });
        if (plot.contains(box) && here < fewest) {
          fewest = here;
          text_->setPadding(QMargins(kBeside, distance, kBeside, distance));
          text_->setPositionAlignment((left ? Qt::AlignRight : Qt::AlignLeft) |
                                      (below ? Qt::AlignTop : Qt::AlignBottom));
        }
      }
    }
  }
}

}  // namespace vexa

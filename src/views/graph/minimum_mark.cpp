// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/minimum_mark.h"

#include <algorithm>

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
  constexpr QMargins kPadding(4, 8, 4, 8);
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
  text_->setPadding(kPadding);
  text_->setSelectable(false);
  text_->setClipToAxisRect(true);
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
  // Below, where nothing of the curve is, unless the border is too near; away from the nearer side.
  constexpr double kRoom = 0.08;
  const QCPRange across = plot_.xAxis->range();
  const QCPRange up = plot_.yAxis->range();
  const bool low = value < up.lower + kRoom * up.size();
  text_->setPositionAlignment((place > across.center() ? Qt::AlignRight : Qt::AlignLeft) |
                              (low ? Qt::AlignBottom : Qt::AlignTop));
}

}  // namespace vexa

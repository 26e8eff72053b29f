// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/history_plot.h"

#include "base/translation.h"
#include "optics/thickness.h"
#include "views/common/fitted_legend.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr QColor kDoubtPaper{0xfd, 0xe9, 0xb8};
constexpr int kPointStep = 10;  // the axis grows by so many points

}  // namespace

HistoryPlot::HistoryPlot(QWidget* parent)
    : Plot(parent),
      legend_(PlaceLegendAbove()),
      line_(addGraph()),
      extrema_(addGraph()),
      doubtful_(addGraph()),
      fits_(addGraph()),
      cursorLine_(new QCPItemStraightLine(this)) {
  setObjectName(QStringLiteral("HistoryPlot"));
  xAxis->setLabel(Text::tr("ﾃﾞｰﾀｲﾝﾃﾞｯｸｽ"));
  xAxis->setSubTicks(false);
  yAxis->setNumberFormat(QStringLiteral("f"));
  yAxis->setNumberPrecision(0);
  line_->setPen(QPen(theme::kAccent, 1.4));
  line_->setAdaptiveSampling(false);
  extrema_->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssDisc, QPen(theme::kAccent), theme::kAccent, 7));
  doubtful_->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssTriangle, QPen(theme::kDoubt, 1.4), kDoubtPaper, 11));
  fits_->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssDiamond, QPen(theme::kGood, 1.6), Qt::NoBrush, 13));
  for (QCPGraph* graph : {extrema_, doubtful_, fits_}) {
    graph->setLineStyle(QCPGraph::lsNone);
    graph->setAdaptiveSampling(false);
  }
  AddCursorLayer();
  cursorLine_->setLayer(QLatin1String(kCursorLayer));
  cursorLine_->setPen(QPen(theme::kMutedText, 1.0, Qt::DashLine));
}

void HistoryPlot::Show(const ThicknessHistory& history, const ThicknessScale& scale, int cursor) {
  QVector<QCPGraphData> points;
  QVector<QCPGraphData> extrema;
  QVector<QCPGraphData> doubtful;
  QVector<QCPGraphData> fits;
  for (QVector<QCPGraphData>* kind : {&points, &extrema, &doubtful, &fits}) {
    kind->reserve(history.count);
  }
  for (const double thicknessNm : history.Points()) {
    const HistoryNote& note = history.notes[static_cast<std::size_t>(points.size())];
    const auto number = static_cast<double>(points.size() + 1);
    points.append({number, thicknessNm});
    if (!note.fitted) {
      (note.doubts.empty() ? extrema : doubtful).append({number, thicknessNm});
    }
    if (note.fitted || note.fitNm > 0.0) {
      fits.append({number, note.fitted ? thicknessNm : note.fitNm});
    }
  }
  line_->data()->set(points, true);
  extrema_->data()->set(extrema, true);
  doubtful_->data()->set(doubtful, true);
  fits_->data()->set(fits, true);
  std::vector<std::pair<QCPGraph*, QString>> entries{{extrema_, Text::tr("膜厚")}};
  if (!doubtful.isEmpty()) {
    entries.emplace_back(doubtful_, Text::tr("疑い"));
  }
  if (!fits.isEmpty()) {
    entries.emplace_back(fits_, Text::tr("ﾌｨｯﾄ"));
  }
  legend_->SetEntries(entries);
  legend_->setVisible(entries.size() > 1);
  const int tens = qMax(1, (history.count + kPointStep - 1) / kPointStep);
  const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
  ticker->setTickStep(tens);
  xAxis->setTicker(ticker);
  xAxis->setRange(0.0, tens * kPointStep + 0.5 * tens);
  yAxis->setRange(scale.minimumNm, scale.maximumNm);
  yAxis->setLabel(Text::tr("膜厚 ") + ThicknessUnit(history.physical));
  cursorLine_->setVisible(cursor > 0);
  cursorLine_->point1->setCoords(cursor, scale.minimumNm);
  cursorLine_->point2->setCoords(cursor, scale.maximumNm);
  replot(rpQueuedReplot);
}

}  // namespace vexa

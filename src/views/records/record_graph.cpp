// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/record_graph.h"

#include <algorithm>

#include "base/translation.h"
#include "views/common/axis_scale.h"
#include "views/common/slot_style.h"
#include "views/graph/plot_navigation.h"

namespace vexa {
namespace {

constexpr double kEmptyPercent = 4.0;
constexpr double kHeadroom = 1.05;

QVector<QCPGraphData> Points(const ReflectanceSpectrum& values) {
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount));
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    points.append({static_cast<double>(nm), values[nm]});
  }
  return points;
}

}  // namespace

RecordGraph::RecordGraph(QWidget* parent) : Plot(parent) {
  setObjectName(QStringLiteral("RecordGraph"));
  xAxis->setLabel(Text::tr("波長 [nm]"));
  yAxis->setLabel(Text::tr("反射率 [%]"));
  setPlottingHint(QCP::phFastPolylines);
  auto* navigation = new PlotNavigation(
      *this, QCPRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm));
  connect(navigation, &PlotNavigation::FullViewRequested, this, [this] {
    ShowFullView();
    replot(rpQueuedReplot);
  });
  ShowFullView();
}

void RecordGraph::Show(const QList<WholeRecord>& records, const QString& heavy) {
  clearGraphs();
  largest_ = 0.0;
  for (qsizetype i = 0; i < records.size(); ++i) {
    const WholeRecord& record = records[i];
    QCPGraph* line = addGraph();
    line->data()->set(Points(record.sample.reflectance), true);
    line->setAdaptiveSampling(false);
    QPen pen(SlotColour(static_cast<int>(i % kSlotCount) + 1));
    const bool standsOut = record.summary.id == heavy && records.size() > 1;
    pen.setWidthF(standsOut ? 2.8 : 1.3);
    line->setPen(pen);
    if (standsOut) {
      line->setLayer(QStringLiteral("overlay"));
    }
    largest_ = std::max(largest_, std::ranges::max(record.sample.reflectance.Values()));
  }
  ShowFullView();
  replot(rpQueuedReplot);
}

void RecordGraph::ShowFullView() {
  xAxis->setRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  yAxis->setRange(0.0, largest_ > 0.0 ? RoundedUp(largest_ * kHeadroom) : kEmptyPercent);
  SetTicks(*xAxis, 0.0);
  SetTicks(*yAxis, 0.0);
}

}  // namespace vexa

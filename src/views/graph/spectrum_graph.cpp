// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/spectrum_graph.h"

#include <algorithm>
#include <cmath>

#include "base/translation.h"
#include "views/common/axis_scale.h"
#include "views/common/fitted_legend.h"
#include "views/common/theme.h"
#include "views/graph/plot_navigation.h"

namespace vexa {
namespace {

constexpr int kMarkerSpacingNm = 40;
// No end of a wide view in 1/λ lies farther.
constexpr double kLongestNm = 2000.0;

QString WavelengthLabel() {
  return Text::tr("波長 [nm]");
}

QVector<QCPGraphData> Points(const ReflectanceSpectrum& values, Abscissa abscissa) {
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount));
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    points.append({AbscissaOf(abscissa, nm), values[nm]});
  }
  if (abscissa == Abscissa::kReciprocal) {
    std::ranges::reverse(points);
  }
  return points;
}

}  // namespace

SpectrumGraph::SpectrumGraph(Abscissa abscissa, const QString& ordinateLabel, QWidget* parent)
    : Plot(parent), abscissa_(abscissa), cursor_(new QCPItemStraightLine(this)) {
  setFocusPolicy(Qt::StrongFocus);
  xAxis->setLabel(abscissa == Abscissa::kWavelength ? WavelengthLabel()
                                                    : QStringLiteral("1/λ [1/µm]"));
  yAxis->setLabel(ordinateLabel);
  // Wide antialiased lines are drawn many times faster piece by piece.
  setPlottingHint(QCP::phFastPolylines);
  legend_ = PlaceLegendAbove();
  if (abscissa == Abscissa::kReciprocal) {
    xAxis2->setLabel(WavelengthLabel());
    xAxis2->setTickLabels(true);
    connect(xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
            &SpectrumGraph::TickWavelengths);
  }
  BuildCursor();

  auto* jump = new QAction(Text::tr("ｼﾞｬﾝﾌﾟ"), this);
  jump->setShortcut(Qt::Key_J);
  addAction(jump);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(jump, &QAction::triggered, this, &SpectrumGraph::JumpRequested);

  auto* navigation =
      new PlotNavigation(*this, {AbscissaOf(abscissa, ReflectanceSpectrum::kFirstNm),
                                 AbscissaOf(abscissa, ReflectanceSpectrum::kLastNm)});
  connect(navigation, &PlotNavigation::Navigated, this, &SpectrumGraph::LeaveFullView);
  connect(navigation, &PlotNavigation::FullViewRequested, this, [this] {
    ShowFullView();
    replot(rpQueuedReplot);
  });
  connect(navigation, &PlotNavigation::Clicked, this, [this](QPointF position) {
    const double place = xAxis->pixelToCoord(position.x());
    MoveCursor(static_cast<int>(std::lround(WavelengthAt(abscissa_, std::max(place, 1e-3)))));
  });
}

// On a layer of its own: a moved cursor leaves the curves as they are painted.
void SpectrumGraph::BuildCursor() {
  AddCursorLayer();
  cursor_->setLayer(QLatin1String(kCursorLayer));
  cursor_->setPen(QPen(theme::kAccent, 1.0));
  cursor_->setSelectable(false);
  PlaceCursor();
}

void SpectrumGraph::PlaceCursor() {
  const double place = AbscissaOf(abscissa_, cursorNm_);
  cursor_->point1->setCoords(place, 0.0);
  cursor_->point2->setCoords(place, 1.0);
}

void SpectrumGraph::ShowCurves(std::vector<SpectrumCurve> curves, const DisplaySettings& display) {
  curves_ = std::move(curves);
  display_ = display;
  while (lines_.size() < curves_.size()) {
    QCPGraph* line = addGraph();
    line->removeFromLegend();
    line->setAdaptiveSampling(false);
    line->setScatterSkip(kMarkerSpacingNm - 1);
    lines_.push_back(line);
  }
  std::vector<std::pair<QCPGraph*, QString>> entries;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    QCPGraph& line = *lines_[i];
    line.setVisible(i < curves_.size());
    if (!line.visible()) {
      line.data()->clear();
      continue;
    }
    const SpectrumCurve& curve = curves_[i];
    line.data()->set(Points(curve.values, abscissa_), true);
    line.setPen(curve.pen);
    line.setScatterStyle(curve.marker);
    entries.emplace_back(&line, curve.name);
  }
  legend_->SetEntries(entries);
  legend->setVisible(!curves_.empty());
  cursor_->setVisible(display.showCursor && !curves_.empty());
  RefreshFullView();
}

void SpectrumGraph::RefreshFullView() {
  if (fullView_) {
    ShowFullView();
  }
  replot(rpQueuedReplot);
}

void SpectrumGraph::MoveCursor(int nm) {
  SetCursor(nm);
  const double place = AbscissaOf(abscissa_, cursorNm_);
  const QCPRange shown = xAxis->range();
  if (cursor_->visible() && !shown.contains(place)) {
    LeaveFullView();
    const double width = shown.size();
    xAxis->setRange(place < shown.lower ? QCPRange(place, place + width)
                                        : QCPRange(place - width, place));
    replot(rpQueuedReplot);
  }
}

void SpectrumGraph::SetCursor(int nm) {
  cursorNm_ = std::clamp(nm, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  PlaceCursor();
  RepaintLayer(QLatin1String(kCursorLayer));
  emit CursorMoved(cursorNm_);
}

void SpectrumGraph::ShowFullView() {
  fullView_ = true;
  ScaleAbscissa();
  ScaleOrdinate(display_);
}

void SpectrumGraph::ScaleAbscissa() {
  const double from = AbscissaOf(abscissa_, display_.shortestNm);
  const double to = AbscissaOf(abscissa_, display_.longestNm);
  xAxis->setRange(std::min(from, to), std::max(from, to));
  SetTicks(*xAxis, abscissa_ == Abscissa::kWavelength ? display_.wavelengthTickNm : 0.0);
}

// The upper axis of the reciprocal view bears wavelengths, unevenly as they lie.
void SpectrumGraph::TickWavelengths() {
  constexpr int kMostTicks = 12;
  const QCPRange range = xAxis->range();
  const auto wavelength = [this](double place) {
    return std::min(WavelengthAt(abscissa_, std::max(place, 1e-3)), kLongestNm);
  };
  const int first = static_cast<int>(std::ceil(wavelength(range.upper)));
  const int last = static_cast<int>(wavelength(range.lower));
  int interval = 1;
  for (const int step : {2, 5, 10, 20, 50, 100, 200}) {
    interval = (last - first) / interval > kMostTicks ? step : interval;
  }
  auto ticker = QSharedPointer<QCPAxisTickerText>::create();
  for (int nm = (first + interval - 1) / interval * interval; nm <= last; nm += interval) {
    ticker->addTick(AbscissaOf(abscissa_, nm), QString::number(nm));
  }
  xAxis2->setTicker(ticker);
}

void SpectrumGraph::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right) {
    return Plot::keyPressEvent(event);
  }
  // Right is to the right, also where the wavelengths fall.
  const bool up = (event->key() == Qt::Key_Right) == (abscissa_ == Abscissa::kWavelength);
  MoveCursor(cursorNm_ + (up ? 1 : -1));
}

// A changed view has round ticks of its own, whatever the settings say.
void SpectrumGraph::LeaveFullView() {
  if (fullView_) {
    fullView_ = false;
    SetTicks(*xAxis, 0.0);
    SetTicks(*yAxis, 0.0);
  }
}

}  // namespace vexa

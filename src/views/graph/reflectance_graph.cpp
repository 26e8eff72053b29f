// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/reflectance_graph.h"

#include <algorithm>
#include <cmath>

#include "views/common/plot_style.h"
#include "views/common/slot_style.h"
#include "views/graph/band_drawing.h"
#include "views/graph/wavelength_cursor.h"

namespace vexa {
namespace {

constexpr double kEmptyMaximumPercent = 4.0;
constexpr double kHeadroom = 1.05;
constexpr double kZoomStep = 0.8;
constexpr double kMoveStep = 0.1;
constexpr double kSelectedWidth = 2.4;
constexpr double kMostTicks = 100.0;
constexpr int kLegendColumns = 5;
constexpr int kClickDistance = 4;
constexpr int kMarkerSpacingNm = 40;
// Limits further above the curves than this would press them flat.
constexpr double kFarLimit = 3.0;

// The next round number at or above the value.
double RoundedUp(double value) {
  const double decade = std::pow(10.0, std::floor(std::log10(value)));
  for (const double step : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (value <= step * decade * (1.0 + 1e-9)) {
      return step * decade;
    }
  }
  return 10.0 * decade;
}

// Ticks at the interval, or, with 0 and where there would be too many of them, at round numbers.
void SetTicks(QCPAxis& axis, double interval) {
  if (interval <= 0.0 || axis.range().size() / interval > kMostTicks) {
    axis.setTicker(QSharedPointer<QCPAxisTicker>::create());
    return;
  }
  auto ticker = QSharedPointer<QCPAxisTickerFixed>::create();
  ticker->setTickStep(interval);
  ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
  axis.setTicker(ticker);
}

QString LegendText(int slot, const QString& sampleNumber) {
  constexpr qsizetype kLongestName = 12;
  const QString name = sampleNumber.size() > kLongestName
                           ? sampleNumber.left(kLongestName - 1) + QStringLiteral("…")
                           : sampleNumber;
  return QStringLiteral("%1 %2").arg(slot).arg(name).trimmed();
}

}  // namespace

ReflectanceGraph::ReflectanceGraph(QWidget* parent) : QCustomPlot(parent) {
  setObjectName(QStringLiteral("ReflectanceGraph"));
  setFocusPolicy(Qt::StrongFocus);
  ApplyPlotStyle(*this);
  xAxis->setLabel(QStringLiteral("波長 [nm]"));
  yAxis->setLabel(QStringLiteral("反射率 [%]"));
  // Wide antialiased lines are drawn many times faster piece by piece.
  setPlottingHint(QCP::phFastPolylines);
  setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    QCPGraph* line = addGraph();
    line->setScatterStyle(SlotMarker(slot));
    line->setScatterSkip(kMarkerSpacingNm - 1);
    line->setAdaptiveSampling(false);
    line->setVisible(false);
    lines_[static_cast<std::size_t>(slot - 1)] = line;
  }
  band_ = std::make_unique<BandDrawing>(*this);
  cursor_ = std::make_unique<WavelengthCursor>(*this);
  PlaceLegendAbove(*this, kLegendColumns);

  auto* jump = new QAction(QStringLiteral("ｼﾞｬﾝﾌﾟ"), this);
  jump->setShortcut(Qt::Key_J);
  jump->setShortcutContext(Qt::WidgetShortcut);
  addAction(jump);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(jump, &QAction::triggered, this, &ReflectanceGraph::JumpRequested);
  // A click moves the cursor, a drag the view.
  connect(this, &QCustomPlot::mousePress, this,
          [this](const QMouseEvent* event) { pressedAt_ = event->pos(); });
  connect(this, &QCustomPlot::mouseRelease, this, [this](const QMouseEvent* event) {
    const bool click = (event->pos() - pressedAt_).manhattanLength() < kClickDistance;
    if (click && event->button() == Qt::LeftButton && axisRect()->rect().contains(event->pos())) {
      MoveCursor(static_cast<int>(std::lround(xAxis->pixelToCoord(event->pos().x()))));
    }
  });

  const auto leaveFullView = [this] { LeaveFullView(); };
  connect(this, &QCustomPlot::mouseWheel, this, leaveFullView);
  connect(this, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* event) {
    const bool dragged = (event->pos() - pressedAt_).manhattanLength() >= kClickDistance;
    if ((event->buttons() & Qt::LeftButton) && dragged) {
      LeaveFullView();
    }
  });
  connect(this, &QCustomPlot::mouseDoubleClick, this, [this] {
    ShowFullView();
    replot(rpQueuedReplot);
  });
  connect(this, &QCustomPlot::afterReplot, this, &ReflectanceGraph::Drawn);
  ShowFullView();
}

ReflectanceGraph::~ReflectanceGraph() = default;

void ReflectanceGraph::Show(const VEXATYPE& state, int selectedSlot) {
  display_ = state.display;
  cursor_->Show(state);
  legend->clearItems();
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    QCPGraph& line = *lines_[static_cast<std::size_t>(number - 1)];
    line.setVisible(slot.valid);
    if (!slot.valid) {
      line.data()->clear();
      continue;
    }
    QVector<QCPGraphData> points;
    points.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount));
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      points.append({static_cast<double>(nm), slot.reflectance[nm]});
    }
    line.data()->set(points, true);
    QPen pen = SlotPen(number);
    if (number == selectedSlot) {
      pen.setWidthF(kSelectedWidth);
    }
    line.setPen(pen);
    line.setName(LegendText(number, slot.info.sampleNumber));
    line.addToLegend();
  }
  legend->setVisible(state.HasValidSlot());
  if (fullView_) {
    ShowFullView();
  }
  replot(rpQueuedReplot);
}

void ReflectanceGraph::ShowBand(const std::vector<std::vector<BandPoint>>& band) {
  band_->Show(band);
  if (fullView_) {
    ShowFullView();
  }
  replot(rpQueuedReplot);
}

void ReflectanceGraph::MoveCursor(int nm) {
  cursor_->MoveTo(nm);
  replot(rpQueuedReplot);
}

int ReflectanceGraph::CursorNm() const {
  return cursor_->Position();
}

void ReflectanceGraph::ShowFullView() {
  fullView_ = true;
  xAxis->setRange(display_.shortestNm, display_.longestNm);
  SetTicks(*xAxis, display_.wavelengthTickNm);
  if (display_.autoScale) {
    const double largest = LargestReflectance();
    yAxis->setRange(0.0, largest > 0.0 ? RoundedUp(largest * kHeadroom) : kEmptyMaximumPercent);
  } else {
    yAxis->setRange(display_.minimumPercent, display_.maximumPercent);
  }
  SetTicks(*yAxis, display_.autoTicks ? 0.0 : display_.tickPercent);
}

void ReflectanceGraph::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Plus:
      return Zoom(kZoomStep);
    case Qt::Key_Minus:
      return Zoom(1.0 / kZoomStep);
    case Qt::Key_Home:
      ShowFullView();
      return replot(rpQueuedReplot);
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (control) {
        return Move(event->key() == Qt::Key_Left ? -kMoveStep : kMoveStep, 0.0);
      }
      return MoveCursor(CursorNm() + (event->key() == Qt::Key_Left ? -1 : 1));
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (control) {
        return Move(0.0, event->key() == Qt::Key_Down ? -kMoveStep : kMoveStep);
      }
      break;
    default:
      break;
  }
  QCustomPlot::keyPressEvent(event);
}

// A changed view has round ticks of its own, whatever the settings say.
void ReflectanceGraph::LeaveFullView() {
  if (fullView_) {
    fullView_ = false;
    SetTicks(*xAxis, 0.0);
    SetTicks(*yAxis, 0.0);
  }
}

void ReflectanceGraph::Zoom(double factor) {
  LeaveFullView();
  xAxis->scaleRange(factor);
  yAxis->scaleRange(factor);
  replot(rpQueuedReplot);
}

void ReflectanceGraph::Move(double wavelengthPart, double reflectancePart) {
  LeaveFullView();
  xAxis->moveRange(wavelengthPart * xAxis->range().size());
  yAxis->moveRange(reflectancePart * yAxis->range().size());
  replot(rpQueuedReplot);
}

double ReflectanceGraph::LargestReflectance() const {
  double largest = 0.0;
  for (const QCPGraph* line : lines_) {
    for (const QCPGraphData& point : *line->data()) {
      largest = std::max(largest, point.value);
    }
  }
  const double limit = band_->HighestLimit();
  return largest > 0.0 && limit > kFarLimit * largest ? largest : std::max(largest, limit);
}

}  // namespace vexa

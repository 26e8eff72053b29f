// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/plot_navigation.h"

namespace vexa {
namespace {

constexpr double kZoomStep = 0.8;
constexpr double kMoveStep = 0.1;
constexpr double kClickDistance = 4.0;

}  // namespace

PlotNavigation::PlotNavigation(QCustomPlot& plot, const QCPRange& widest)
    : QObject(&plot), plot_(plot) {
  plot_.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  plot_.installEventFilter(this);
  connect(plot_.xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
          [this, widest](const QCPRange& shown) {
            plot_.xAxis->setRange(shown.bounded(widest.lower, widest.upper));
          });
  connect(&plot_, &QCustomPlot::mousePress, this,
          [this](const QMouseEvent* event) { pressedAt_ = event->position(); });
  connect(&plot_, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) && IsDrag(*event)) {
      emit Navigated();
    }
  });
  connect(&plot_, &QCustomPlot::mouseRelease, this, [this](const QMouseEvent* event) {
    const bool inside = plot_.axisRect()->rect().contains(event->pos());
    if (event->button() == Qt::LeftButton && inside && !IsDrag(*event)) {
      emit Clicked(event->position());
    }
  });
  connect(&plot_, &QCustomPlot::mouseWheel, this, &PlotNavigation::Navigated);
  connect(&plot_, &QCustomPlot::mouseDoubleClick, this, &PlotNavigation::FullViewRequested);
}

bool PlotNavigation::eventFilter(QObject* watched, QEvent* event) {
  return (event->type() == QEvent::KeyPress && HandleKey(*static_cast<QKeyEvent*>(event))) ||
         QObject::eventFilter(watched, event);
}

bool PlotNavigation::HandleKey(const QKeyEvent& event) {
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Plus:
      Zoom(kZoomStep);
      return true;
    case Qt::Key_Minus:
      Zoom(1.0 / kZoomStep);
      return true;
    case Qt::Key_Home:
      emit FullViewRequested();
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (control) {
        Move(event.key() == Qt::Key_Left ? -kMoveStep : kMoveStep, 0.0);
      }
      return control;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (control) {
        Move(0.0, event.key() == Qt::Key_Down ? -kMoveStep : kMoveStep);
      }
      return control;
    default:
      return false;
  }
}

void PlotNavigation::Zoom(double factor) {
  emit Navigated();
  plot_.xAxis->scaleRange(factor);
  plot_.yAxis->scaleRange(factor);
  plot_.replot(QCustomPlot::rpQueuedReplot);
}

void PlotNavigation::Move(double horizontalPart, double verticalPart) {
  emit Navigated();
  plot_.xAxis->moveRange(horizontalPart * plot_.xAxis->range().size());
  plot_.yAxis->moveRange(verticalPart * plot_.yAxis->range().size());
  plot_.replot(QCustomPlot::rpQueuedReplot);
}

bool PlotNavigation::IsDrag(const QMouseEvent& event) const {
  return (event.position() - pressedAt_).manhattanLength() >= kClickDistance;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/xmr_plot.h"

#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/translation.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"
#include "views/statistics/line_ticker.h"

namespace vexa {
namespace {

constexpr int kGroupColours = 10;
constexpr std::size_t kManyPoints = 1000;  // more than the chart has pixels
constexpr double kMargin = 0.06;           // of the range, above and below
// A tolerance further away than this would press the points flat.
constexpr double kFarLimit = 4.0;
const QPen kControlPen(theme::kBad, 1.2, Qt::DashLine);
const QPen kTolerancePen(QColor(0x8a, 0x5a, 0x00), 1.2, Qt::DashDotLine);

// The axes of a pane as Plot gives them to its own.
void DressPane(QCPAxisRect& pane, const QCPAxisRect& model) {
  pane.setupFullAxesBox(true);
  for (const auto type : {QCPAxis::atLeft, QCPAxis::atRight, QCPAxis::atTop, QCPAxis::atBottom}) {
    QCPAxis& axis = *pane.axis(type);
    const QCPAxis& like = *model.axis(type);
    axis.setBasePen(like.basePen());
    axis.setTickPen(like.tickPen());
    axis.setSubTickPen(like.subTickPen());
    axis.setTickLength(5, 0);
    axis.setSubTickLength(3, 0);
    axis.setTickLabelColor(theme::kText);
    axis.setTickLabelFont(like.tickLabelFont());
    axis.setLabelColor(theme::kText);
    axis.setLabelFont(like.labelFont());
    axis.grid()->setPen(like.grid()->pen());
    axis.grid()->setZeroLinePen(like.grid()->pen());
    for (QCPLayerable* part :
         {static_cast<QCPLayerable*>(&axis), static_cast<QCPLayerable*>(axis.grid())}) {
      part->setLayer(part == &axis ? QStringLiteral("axes") : QStringLiteral("grid"));
    }
  }
}

}  // namespace

XmrPlot::XmrPlot(Panes panes, QWidget* parent) : Plot(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  if (panes == Panes::kValuesAndRanges) {
    ranges_ = new QCPAxisRect(this);
    DressPane(*ranges_, *axisRect());
    plotLayout()->addElement(1, 0, ranges_);
    plotLayout()->setRowStretchFactor(0, 2.0);
    plotLayout()->setRowSpacing(2);
    auto* together = new QCPMarginGroup(this);
    axisRect()->setMarginGroup(QCP::msLeft | QCP::msRight, together);
    ranges_->setMarginGroup(QCP::msLeft | QCP::msRight, together);
    ranges_->axis(QCPAxis::atBottom)->setLabel(Text::tr("点番号"));
    ranges_->axis(QCPAxis::atLeft)->setLabel(Text::tr("移動範囲"));
    connect(xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged),
            ranges_->axis(QCPAxis::atBottom), qOverload<const QCPRange&>(&QCPAxis::setRange));
  }
  // Points have whole numbers.
  const QSharedPointer<QCPAxisTickerFixed> whole(new QCPAxisTickerFixed);
  whole->setTickStep(1.0);
  whole->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
  xAxis->setTicker(whole);
  xAxis->setSubTicks(false);
  if (ranges_ != nullptr) {
    ranges_->axis(QCPAxis::atBottom)->setTicker(whole);
    ranges_->axis(QCPAxis::atBottom)->setSubTicks(false);
    ranges_->axis(QCPAxis::atLeft)->ticker()->setTickCount(3);  // it is half as high
  }
  yAxis2->setTickLabels(true);
  axisRect()->setRangeDrag(Qt::Horizontal);
  axisRect()->setRangeZoom(Qt::Horizontal);
  setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  AddCursorLayer();
  mark_ = addGraph();
  mark_->setLayer(QLatin1String(kCursorLayer));
  mark_->setLineStyle(QCPGraph::lsNone);
  mark_->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(theme::kText, 2.0), Qt::NoBrush, 13));
}

void XmrPlot::Show(XmrPicture picture) {
  picture_ = std::move(picture);
  clearItems();
  for (int i = graphCount() - 1; i >= 0; --i) {
    if (graph(i) != mark_) {
      removeGraph(i);
    }
  }
  chosen_ = 0;
  mark_->data()->clear();
  yAxis->setLabel(picture_.title);
  ShowValues();
  if (ranges_ != nullptr) {
    ShowRanges();
  }
  ShowAll();
}

void XmrPlot::ShowValues() {
  const std::vector<double>& values = picture_.values;
  const bool many = values.size() > kManyPoints;
  QCPGraph* line = addGraph();
  line->setPen(QPen(many ? theme::kBorder : theme::kMutedText, 1.0));
  line->setAntialiased(!many);
  QVector<QCPGraphData> all;
  all.reserve(static_cast<qsizetype>(values.size()));
  std::vector<QVector<QCPGraphData>> groups(kGroupColours);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const QCPGraphData point(static_cast<double>(i + 1), values[i]);
    all.append(point);
    const int group = picture_.groups.empty() ? 0 : picture_.groups[i] % kGroupColours;
    groups[static_cast<std::size_t>(group)].append(point);
  }
  line->data()->set(all, true);
  for (int group = 0; group < kGroupColours; ++group) {
    const QVector<QCPGraphData>& points = groups[static_cast<std::size_t>(group)];
    if (points.isEmpty()) {
      continue;
    }
    const QColor colour = picture_.groups.empty() ? theme::kAccent : SlotColour(group + 1);
    QCPGraph* graph = addGraph();
    graph->setLineStyle(QCPGraph::lsNone);
    graph->setAntialiasedScatters(!many);
    graph->setScatterStyle(many ? QCPScatterStyle(QCPScatterStyle::ssSquare, colour, colour, 2)
                                : QCPScatterStyle(QCPScatterStyle::ssDisc, colour, colour, 6));
    graph->data()->set(points, true);
  }
  QCPGraph* broken = addGraph();
  broken->setLineStyle(QCPGraph::lsNone);
  broken->setAntialiasedScatters(!many);
  broken->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(theme::kBad, 1.6), Qt::NoBrush, 10));
  for (const std::size_t point : picture_.broken) {
    broken->addData(static_cast<double>(point), values[point - 1]);
  }

  auto [least, greatest] = values.empty() ? std::pair(0.0, 1.0) : std::pair(values[0], values[0]);
  const auto include = [&least = least, &greatest = greatest](double value) {
    least = std::min(least, value);
    greatest = std::max(greatest, value);
  };
  for (const double value : values) {
    include(value);
  }
  std::vector<std::pair<QString, double>> lines;
  if (picture_.limits) {
    lines = {{QStringLiteral("CL"), picture_.limits->centre},
             {QStringLiteral("UCL"), picture_.limits->upper},
             {QStringLiteral("LCL"), picture_.limits->lower}};
    include(picture_.limits->upper);
    include(picture_.limits->lower);
  }
  std::vector<std::pair<QString, double>> tolerance;
  const double reach = kFarLimit * (greatest - least);
  for (const auto& [name, limit] : {std::pair{QStringLiteral("USL"), picture_.tolerance.upper},
                                    std::pair{QStringLiteral("LSL"), picture_.tolerance.lower}}) {
    if (limit && *limit<greatest + reach&& * limit> least - reach) {
      tolerance.emplace_back(name, *limit);
    }
  }
  for (const auto& [name, limit] : tolerance) {
    include(limit);
  }
  const double span = greatest > least ? greatest - least : std::max(1e-9, std::abs(least) * 0.1);
  yAxis->setRange(least - kMargin * span, greatest + kMargin * span);
  ShowLines(*axisRect(), lines, kControlPen);
  ShowLines(*axisRect(), tolerance, kTolerancePen);

  // The first lines have the right of way.
  lines.insert(lines.end(), tolerance.begin(), tolerance.end());
  yAxis2->setTicker(QSharedPointer<LineTicker>::create(*yAxis2, lines));
}

void XmrPlot::ShowRanges() {
  QCPAxis* x = ranges_->axis(QCPAxis::atBottom);
  QCPAxis* y = ranges_->axis(QCPAxis::atLeft);
  const std::vector<double>& values = picture_.values;
  const bool many = values.size() > kManyPoints;
  QCPGraph* line = addGraph(x, y);
  line->setPen(QPen(theme::kMutedText, 1.0));
  line->setAntialiased(!many);
  if (!many) {
    line->setScatterStyle(
        QCPScatterStyle(QCPScatterStyle::ssDisc, theme::kAccent, theme::kAccent, 4));
  }
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(values.size()));
  double greatest = 0.0;
  for (std::size_t i = 1; i < values.size(); ++i) {
    const double range = std::abs(values[i] - values[i - 1]);
    points.append({static_cast<double>(i + 1), range});
    greatest = std::max(greatest, range);
  }
  line->data()->set(points, true);
  std::vector<std::pair<QString, double>> lines;
  if (picture_.limits) {
    lines = {{QStringLiteral("UCL"), picture_.limits->upperRange},
             {QStringLiteral("MR"), picture_.limits->meanRange}};
    greatest = std::max(greatest, picture_.limits->upperRange);
    QCPGraph* wide = addGraph(x, y);
    wide->setLineStyle(QCPGraph::lsNone);
    wide->setScatterStyle(
        QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(theme::kBad, 1.4), Qt::NoBrush, 8));
    for (const std::size_t point : statistics::WideRanges(*picture_.limits, values)) {
      wide->addData(static_cast<double>(point), std::abs(values[point - 1] - values[point - 2]));
    }
  }
  y->setRange(0.0, greatest > 0.0 ? greatest * (1.0 + kMargin) : 1.0);
  QCPAxis* right = ranges_->axis(QCPAxis::atRight);
  right->setTickLabels(true);
  right->setTicker(QSharedPointer<LineTicker>::create(*right, lines));
  ShowLines(*ranges_, lines, kControlPen);
}

void XmrPlot::ShowLines(QCPAxisRect& pane, const std::vector<std::pair<QString, double>>& lines,
                        const QPen& pen) {
  for (const auto& [name, value] : lines) {
    const bool centre = name == QLatin1String("CL") || name == QLatin1String("MR");
    auto* line = new QCPItemStraightLine(this);
    for (QCPItemPosition* point : {line->point1, line->point2}) {
      point->setAxes(pane.axis(QCPAxis::atBottom), pane.axis(QCPAxis::atLeft));
      point->setAxisRect(&pane);
      point->setCoords(point == line->point1 ? 0.0 : 1.0, value);
    }
    line->setClipAxisRect(&pane);
    line->setPen(centre ? QPen(theme::kGood, 1.2) : pen);
    line->setAntialiased(false);
  }
}

void XmrPlot::ShowAll() {
  const auto count = static_cast<double>(picture_.values.size());
  const double margin = std::max(0.5, 0.01 * count);
  constexpr double kFewestPlaces = 5.0;  // fewer would have ticks between them
  xAxis->setRange(1.0 - margin, std::max(count, kFewestPlaces) + margin);
  replot(rpQueuedReplot);
}

void XmrPlot::Choose(int point) {
  chosen_ = point;
  mark_->data()->clear();
  if (point > 0) {
    mark_->addData(point, picture_.values[static_cast<std::size_t>(point - 1)]);
    if (!xAxis->range().contains(point)) {
      const double half = 0.5 * xAxis->range().size();
      xAxis->setRange(point - half, point + half);
      replot(rpQueuedReplot);
    }
  }
  RepaintLayer(QLatin1String(kCursorLayer));
}

int XmrPlot::PointAt(const QPointF& position) const {
  const auto count = static_cast<int>(picture_.values.size());
  const bool inside = axisRect()->rect().contains(position.toPoint()) ||
                      (ranges_ != nullptr && ranges_->rect().contains(position.toPoint()));
  if (!inside || count == 0) {
    return 0;
  }
  return std::clamp(static_cast<int>(std::lround(xAxis->pixelToCoord(position.x()))), 1, count);
}

void XmrPlot::Pick(int point) {
  if (point > 0) {
    Choose(point);
    emit PointChosen(point);
  }
}

void XmrPlot::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->pos();
  Plot::mousePressEvent(event);
}

void XmrPlot::mouseReleaseEvent(QMouseEvent* event) {
  Plot::mouseReleaseEvent(event);
  constexpr int kStill = 4;
  if (event->button() == Qt::LeftButton && (event->pos() - pressed_).manhattanLength() < kStill) {
    Pick(PointAt(event->position()));
  }
}

void XmrPlot::mouseMoveEvent(QMouseEvent* event) {
  Plot::mouseMoveEvent(event);
  const int point = event->buttons() == Qt::NoButton ? PointAt(event->position()) : 0;
  const auto index = static_cast<std::size_t>(point - 1);
  if (point > 0 && index < picture_.hints.size()) {
    QToolTip::showText(event->globalPosition().toPoint(), picture_.hints[index], this);
  } else {
    QToolTip::hideText();
  }
}

void XmrPlot::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  ShowAll();
}

void XmrPlot::keyPressEvent(QKeyEvent* event) {
  const auto count = static_cast<int>(picture_.values.size());
  if ((event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) && count > 0) {
    Pick(std::clamp(chosen_ + (event->key() == Qt::Key_Left ? -1 : 1), 1, count));
  } else {
    Plot::keyPressEvent(event);
  }
}

}  // namespace vexa

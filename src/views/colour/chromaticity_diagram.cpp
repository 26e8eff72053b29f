// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/chromaticity_diagram.h"

#include <QShortcut>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "colour/cie_colour.h"
#include "colour/colour_tables.h"
#include "standards/tolerance_region.h"
#include "views/common/colour_texts.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr QMargins kMargins(30, 10, 16, 24);
constexpr QColor kGridColour(200, 200, 200);
const QString kPictureLayer = QStringLiteral("picture");
constexpr int kSmallPixels = 10;
constexpr int kLeastForRange = 300;  // pixels of the axes
constexpr int kLeastForLabels = 140;
constexpr int kGridSteps = 8;
constexpr std::array kLabReaches{10, 20, 40};

struct AxisTexts {
  QString lowerEnd;
  QString name;  ///< stands in the middle, where it takes no room of its own
  QString upperEnd;
};

void SetAxis(QCPAxis& axis, QCPAxis& opposite, double from, double to, const AxisTexts& texts) {
  const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
  for (int step = 0; step <= kGridSteps; ++step) {
    ticker->addTick(from + (to - from) * step / kGridSteps, step == 0            ? texts.lowerEnd
                                                            : step == kGridSteps ? texts.upperEnd
                                                            : step == kGridSteps / 2 ? texts.name
                                                                                     : QString());
  }
  for (QCPAxis* each : {&axis, &opposite}) {
    each->setTicker(ticker);
    each->setRange(from, to);
  }
}

QFont SmallFont(const QCustomPlot& plot) {
  QFont font = plot.font();
  font.setPixelSize(kSmallPixels);
  return font;
}

QCPGraph* AddPoints(QCustomPlot& plot, const QColor& colour, double size) {
  QCPGraph* graph = plot.addGraph();
  graph->setLayer(QStringLiteral("marks"));
  graph->setLineStyle(QCPGraph::lsNone);
  graph->setScatterStyle({QCPScatterStyle::ssCircle, QPen(Qt::white, 1.0), colour, size});
  return graph;
}

// Shows the points first..end - 1 of the stock, counted from 0.
void SetPoints(QCPGraph& graph, const ColourStock& stock, int first, int end) {
  graph.data()->clear();
  for (int i = first; i < end; ++i) {
    const auto index = static_cast<std::size_t>(i);
    graph.addData(stock.P1[index], stock.P2[index]);
  }
}

// Where a slot stands; nothing for an empty one and for one without a colour.
std::optional<QPointF> CoordinatesOf(const MeasurementSlot& slot, const ColourSettings& settings,
                                     ColourKind kind, bool xyMode) {
  if (!slot.valid) {
    return std::nullopt;
  }
  if (kind == ColourKind::kInstrument) {
    const ColourResult& colour = slot.colour;
    return !colour.IsComputed() ? std::nullopt
           : xyMode             ? std::optional(QPointF(colour.x, colour.y))
                                : std::optional(QPointF(colour.a, colour.b));
  }
  const std::optional<CieColour> colour = CalcCieColour(slot.reflectance, settings);
  if (!colour || std::isnan(colour->x)) {
    return std::nullopt;
  }
  return xyMode ? QPointF(colour->x, colour->y) : QPointF(colour->a, colour->b);
}

// The instrument's white points are its own roundings.
std::optional<QPointF> WhiteOf(const StockConditions& conditions, ColourKind kind) {
  if (kind == ColourKind::kInstrument) {
    const auto point = WhitePointOf(conditions.illuminant, conditions.observer2Deg);
    return point ? std::optional(QPointF(point->x, point->y)) : std::nullopt;
  }
  ReflectanceSpectrum perfect;
  std::ranges::fill(perfect.Values(), 100.0);
  const auto white =
      CalcCieColour(perfect, {conditions.illuminant, conditions.observer2Deg, 440, 840});
  return white ? std::optional(QPointF(white->x, white->y)) : std::nullopt;
}

}  // namespace

ChromaticityDiagram::ChromaticityDiagram(std::shared_ptr<BackgroundPicture> picture,
                                         QWidget* parent)
    : Plot(parent),
      picture_(std::move(picture)),
      locus_(*this, SmallFont(*this)),
      tolerance_(*this) {
  setObjectName(QStringLiteral("ChromaticityDiagram"));
  setPlottingHint(QCP::phFastPolylines);
  axisRect()->setAutoMargins(QCP::msNone);
  addLayer(kPictureLayer, layer(QStringLiteral("grid")), limAbove);
  layer(kPictureLayer)->setMode(QCPLayer::lmBuffered);  // grows while the rest stays as it is
  addLayer(QStringLiteral("texts"), layer(QStringLiteral("main")), limAbove);
  addLayer(QStringLiteral("marks"), layer(QStringLiteral("axes")), limAbove);
  for (QCPAxis* axis : {xAxis, yAxis, xAxis2, yAxis2}) {
    axis->setSubTicks(false);
    axis->setTickLabelFont(SmallFont(*this));
    axis->grid()->setPen(QPen(kGridColour, 0.0));
    axis->grid()->setZeroLinePen(QPen(theme::kMutedText, 1.0));
  }

  background_ = new QCPItemPixmap(this);
  background_->setLayer(kPictureLayer);
  background_->setScaled(true, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const double half = DiagramBackground::kPitch / 2.0;
  background_->topLeft->setCoords(-half, BackgroundPicture::kEnd + half);
  background_->bottomRight->setCoords(BackgroundPicture::kEnd + half, -half);

  conditionsText_ = new QCPItemText(this);
  conditionsText_->setLayer(QStringLiteral("texts"));
  conditionsText_->setFont(SmallFont(*this));
  conditionsText_->setColor(theme::kMutedText);
  conditionsText_->setBrush(QColor(255, 255, 255, 210));
  conditionsText_->setPadding(QMargins(6, 4, 6, 4));
  conditionsText_->setPositionAlignment(Qt::AlignRight | Qt::AlignTop);
  conditionsText_->position->setType(QCPItemPosition::ptAxisRectRatio);
  conditionsText_->position->setCoords(1.0, 0.0);
  marks_ = new DiagramMarks(this);
  marks_->setLayer(QStringLiteral("marks"));
  points_ = AddPoints(*this, theme::kText, 6.0);
  lastPoint_ = AddPoints(*this, theme::kAccent, 10.0);

  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setEnabled(picture_->IsBuilding());
  connect(escape, &QShortcut::activated, picture_.get(), &BackgroundPicture::RequestAbort);
  connect(picture_.get(), &BackgroundPicture::BuildingChanged, escape, &QShortcut::setEnabled);
  connect(picture_.get(), &BackgroundPicture::Grown, this, &ChromaticityDiagram::DrawPicture);
  DrawPicture();
}

void ChromaticityDiagram::SetKind(ColourKind kind, bool named) {
  kind_ = kind;
  named_ = named;
}

void ChromaticityDiagram::ShowSlots(const VEXATYPE& state, int selectedSlot) {
  const StockConditions conditions = state.ColourConditions();
  ShowFrame(conditions, state, kind_);
  const bool accumulated =
      kind_ == ColourKind::kInstrument && state.accumulate && !state.stock.DiffersFrom(conditions);
  SetPoints(*points_, state.stock, 0, accumulated ? state.stock.Count : 0);
  points_->setLayer(QStringLiteral("texts"));  // below the slots
  std::vector<SlotMark> marks;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (const std::optional<QPointF> at =
            CoordinatesOf(*state.Slot(number), state.colour, kind_, xyMode_)) {
      marks.push_back({number, *at, number == selectedSlot});
    }
  }
  std::stable_partition(marks.begin(), marks.end(),
                        [](const SlotMark& mark) { return !mark.selected; });
  marks_->SetSlots(std::move(marks));
  replot(rpQueuedReplot);
}

void ChromaticityDiagram::ShowStock(const VEXATYPE& state) {
  const ColourStock& stock = state.stock;
  ShowFrame({stock.StockMode, stock.StockIlluminant, stock.StockObserver}, state,
            ColourKind::kInstrument);
  const int last = std::max(stock.Count - 1, 0);
  SetPoints(*points_, stock, 0, last);
  SetPoints(*lastPoint_, stock, last, stock.Count);
  replot(rpQueuedReplot);
}

QSize ChromaticityDiagram::sizeHint() const {
  constexpr int kUsualWidth = 280;
  return {kUsualWidth, HeightFor(kUsualWidth)};
}

int ChromaticityDiagram::HeightFor(int width) {
  return width - kMargins.left() - kMargins.right() + kMargins.top() + kMargins.bottom();
}

void ChromaticityDiagram::resizeEvent(QResizeEvent* event) {
  Fit(size());
  Plot::resizeEvent(event);
}

void ChromaticityDiagram::Fit(QSize size) {
  const QRect room = QRect(QPoint(), size).marginsRemoved(kMargins);
  side_ = std::min(room.width(), room.height());
  const int besides = std::max(0, (room.width() - side_) / 2);
  const int above = std::max(0, (room.height() - side_) / 2);
  axisRect()->setMargins(kMargins + QMargins(besides, above, room.width() - side_ - besides,
                                             room.height() - side_ - above));
  ShowConditions();
}

void ChromaticityDiagram::showEvent(QShowEvent* event) {
  Plot::showEvent(event);
  RequestPicture();
}

void ChromaticityDiagram::mousePressEvent(QMouseEvent* event) {
  picture_->RequestAbort();
  Plot::mousePressEvent(event);
}

void ChromaticityDiagram::ShowFrame(const StockConditions& conditions, const VEXATYPE& state,
                                    ColourKind kind) {
  xyMode_ = conditions.xyMode;
  const bool own = kind == ColourKind::kInstrument;
  ShowAxes(state.display.labScale, kind);
  locus_.Show(xyMode_ ? SpectralLocus(conditions.observer2Deg) : std::vector<LocusPoint>());
  tolerance_.Show(xyMode_ || !own
                      ? ToleranceRegion()
                      : ToleranceRegionOf(state.standard, state.chromaMarker, state.hueMarker),
                  labReach_);
  background_->setVisible(xyMode_);
  const QString illuminant = IlluminantText(conditions.illuminant);
  marks_->SetWhitePoint(xyMode_ ? WhiteOf(conditions, kind) : std::nullopt, illuminant);
  QString text = QStringLiteral("%1 / %2°").arg(illuminant, ObserverText(conditions.observer2Deg));
  if (named_) {
    text.prepend(ColourKindText(kind) + QStringLiteral("  "));
  }
  conditions_ = text;
  range_ = own ? QString() : CieRangeText();
  ShowConditions();
  RequestPicture();
}

// A small diagram has no room beside the locus: what shows it there says the rest below it.
void ChromaticityDiagram::ShowConditions() {
  const bool room = side_ >= kLeastForRange;
  locus_.ShowLabels(side_ >= kLeastForLabels);
  conditionsText_->setText(range_.isEmpty() || !room ? conditions_ : conditions_ + u'\n' + range_);
}

void ChromaticityDiagram::ShowAxes(int labScale, ColourKind kind) {
  if (labScale >= 0 && labScale < static_cast<int>(kLabReaches.size())) {
    labReach_ = kLabReaches[static_cast<std::size_t>(labScale)];
  }
  const auto name = [kind](const char* symbol) {
    const QString text = QLatin1String(symbol);
    return kind == ColourKind::kCie ? QStringLiteral("%1 (CIE)").arg(text) : text;
  };
  if (xyMode_) {
    const QString end = QStringLiteral("0.8");
    SetAxis(*xAxis, *xAxis2, 0.0, BackgroundPicture::kEnd, {QStringLiteral("0"), name("x"), end});
    SetAxis(*yAxis, *yAxis2, 0.0, BackgroundPicture::kEnd, {QString(), QStringLiteral("y"), end});
  } else {
    const QString lower = QString::number(-labReach_);
    SetAxis(*xAxis, *xAxis2, -labReach_, labReach_,
            {lower, name("a*"), QString::number(labReach_)});
    SetAxis(*yAxis, *yAxis2, -labReach_, labReach_, {lower, QStringLiteral("b*"), QString()});
  }
}

void ChromaticityDiagram::DrawPicture() {
  background_->setPixmap(QPixmap::fromImage(picture_->Image()));
  RepaintLayer(kPictureLayer);
}

void ChromaticityDiagram::RequestPicture() {
  if (xyMode_ && isVisible()) {
    picture_->Request();
  }
}

}  // namespace vexa

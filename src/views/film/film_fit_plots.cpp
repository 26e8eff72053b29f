// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_plots.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"
#include "views/common/fitted_legend.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kSlowNm = 600.0;  // below it stands what is left of the slow part
constexpr double kLeastShownNm = 3000.0;

QCPRange Around(double low, double high) {
  const double margin = 0.06 * std::max(high - low, 1e-3);
  return {low - margin, high + margin};
}

}  // namespace

FilmFitPlot::FilmFitPlot(QWidget* parent) : Plot(parent), lower_(new QCPAxisRect(this)) {
  setObjectName(QStringLiteral("FilmFitPlot"));
  legend_ = PlaceLegendAbove();
  StyleAxes(*lower_);
  plotLayout()->addElement(2, 0, lower_);
  plotLayout()->setRowStretchFactor(2, 0.45);
  plotLayout()->setRowSpacing(0);
  auto* margins = new QCPMarginGroup(this);
  for (QCPAxisRect* rect : {axisRect(), lower_}) {
    rect->setMarginGroup(QCP::msLeft | QCP::msRight, margins);
    rect->axis(QCPAxis::atBottom)
        ->setRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  }
  xAxis->setTickLabels(false);
  lower_->axis(QCPAxis::atBottom)->setLabel(Text::tr("波長 [nm]"));
  lower_->axis(QCPAxis::atLeft)->setLabel(Text::tr("残差 [%]"));
  lower_->axis(QCPAxis::atLeft)->ticker()->setTickCount(3);
  lower_->axis(QCPAxis::atLeft)->grid()->setZeroLinePen(QPen(theme::kMutedText, 1.0));
  yAxis->setLabel(Text::tr("反射率 [%]"));
  setPlottingHint(QCP::phFastPolylines);
  measured_ = addGraph();
  fitted_ = addGraph();
  fitted_->setPen(QPen(theme::kText, 1.2, Qt::DashLine));
  residual_ = addGraph(lower_->axis(QCPAxis::atBottom), lower_->axis(QCPAxis::atLeft));
  residual_->setPen(QPen(theme::kMutedText, 1.2));
}

void FilmFitPlot::Show(const ReflectanceSpectrum& measured, int slot,
                       const std::optional<FilmFit>& fit) {
  QVector<QCPGraphData> points;
  QVector<QCPGraphData> fitted;
  QVector<QCPGraphData> residual;
  points.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount));
  auto [low, high] = std::ranges::minmax(measured.Values());
  double most = 0.0;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    points.append({static_cast<double>(nm), measured[nm]});
  }
  const std::size_t count = fit ? fit->fitted.size() : 0;
  fitted.reserve(static_cast<qsizetype>(count));
  residual.reserve(static_cast<qsizetype>(count));
  for (std::size_t i = 0; i < count; ++i) {
    const int nm = fit->fromNm + static_cast<int>(i);
    const double left = measured[nm] - fit->fitted[i];
    fitted.append({static_cast<double>(nm), fit->fitted[i]});
    residual.append({static_cast<double>(nm), left});
    low = std::min(low, fit->fitted[i]);
    high = std::max(high, fit->fitted[i]);
    most = std::max(most, std::abs(left));
  }
  measured_->setPen(SlotPen(slot));
  measured_->data()->set(points, true);
  fitted_->data()->set(fitted, true);
  residual_->data()->set(residual, true);
  yAxis->setRange(Around(low, high));
  lower_->axis(QCPAxis::atLeft)->setRange(Around(-std::max(most, 1e-3), std::max(most, 1e-3)));
  legend_->SetEntries({{measured_, Text::tr("測定")}, {fitted_, Text::tr("ﾌｨｯﾄ")}});
  legend_->setVisible(true);
  replot(rpQueuedReplot);
}

void FilmFitPlot::ShowNothing() {
  for (QCPGraph* graph : {measured_, fitted_, residual_}) {
    graph->data()->clear();
  }
  legend_->setVisible(false);
  replot(rpQueuedReplot);
}

FourierPlot::FourierPlot(QWidget* parent) : Plot(parent) {
  setObjectName(QStringLiteral("FourierPlot"));
  xAxis->setLabel(Text::tr("膜厚 [nm]"));
  xAxis->ticker()->setTickCount(2);
  yAxis->setLabel(Text::tr("ﾌｰﾘｴ振幅 [%]"));
  amplitude_ = addGraph();
  amplitude_->setPen(QPen(theme::kAccent, 1.4));
  peaks_ = addGraph();
  peaks_->setLineStyle(QCPGraph::lsNone);
  peaks_->setScatterStyle(
      QCPScatterStyle(QCPScatterStyle::ssTriangleInverted, QPen(theme::kBad), theme::kBad, 8));
}

void FourierPlot::Show(const std::optional<FourierThickness>& transform,
                       const std::optional<FilmFit>& fit) {
  clearItems();
  QVector<QCPGraphData> curve;
  QVector<QCPGraphData> peaks;
  double shownNm = kLeastShownNm;
  double highest = 1e-3;
  const std::size_t count = transform ? transform->amplitude.size() : 0;
  curve.reserve(static_cast<qsizetype>(count));
  for (std::size_t i = 0; i < count; ++i) {
    curve.append({static_cast<double>(i) * transform->stepNm, transform->amplitude[i]});
  }
  const std::vector<FourierPeak> candidates =
      transform ? transform->Candidates() : std::vector<FourierPeak>();
  for (const FourierPeak& peak : candidates) {
    peaks.append({peak.thicknessNm, peak.amplitude});
    shownNm = std::max(shownNm, 1.6 * peak.thicknessNm);
    highest = std::max(highest, peak.amplitude);
  }
  for (const QCPGraphData& point : curve) {
    if (candidates.empty() && point.key >= kSlowNm) {
      highest = std::max(highest, point.value);
    }
  }
  if (fit && fit->outcome != FitOutcome::kNone) {
    for (const FittedLayer& layer : fit->layers) {
      auto* line = new QCPItemStraightLine(this);
      line->point1->setCoords(layer.thicknessNm, 0.0);
      line->point2->setCoords(layer.thicknessNm, 1.0);
      line->setPen(QPen(theme::kText, 1.0, Qt::DashLine));
      shownNm = std::max(shownNm, 1.3 * layer.thicknessNm);
    }
  }
  shownNm = std::min(shownNm, FourierThickness::kHighestNm);
  for (const FourierPeak& peak : candidates) {
    AddLabel(peak, peak.thicknessNm / shownNm);
  }
  if (transform && candidates.empty()) {
    AddNoFringes();
  }
  amplitude_->data()->set(curve, true);
  std::ranges::sort(peaks, {}, &QCPGraphData::key);
  peaks_->data()->set(peaks, true);
  xAxis->setRange(0.0, shownNm);
  // The slow part that is left at 0 may stand above the fringes.
  yAxis->setRange(0.0, 1.25 * highest);
  replot(rpQueuedReplot);
}

// The noise fills the axis then, and is not to be taken for them.
void FourierPlot::AddNoFringes() {
  auto* label = new QCPItemText(this);
  label->setText(Text::tr("干渉縞なし"));
  label->setColor(theme::kMutedText);
  label->setFont(font());
  label->setPositionAlignment(Qt::AlignHCenter | Qt::AlignTop);
  label->position->setType(QCPItemPosition::ptAxisRectRatio);
  label->position->setCoords(0.5, 0.02);
}

// `place` within the axis, 0 to 1: near an end the label stands to the inner side.
void FourierPlot::AddLabel(const FourierPeak& peak, double place) {
  constexpr double kEnd = 0.2;
  auto* label = new QCPItemText(this);
  label->setText(FormatNumber(peak.thicknessNm, u"0"));
  label->setColor(theme::kText);
  label->setFont(font());
  label->setPositionAlignment((place < kEnd         ? Qt::AlignLeft
                               : place > 1.0 - kEnd ? Qt::AlignRight
                                                    : Qt::AlignHCenter) |
                              Qt::AlignBottom);
  label->position->setCoords(peak.thicknessNm, peak.amplitude);
  label->setPadding({0, 0, 0, 7});
}

}  // namespace vexa

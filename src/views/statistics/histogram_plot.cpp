// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/histogram_plot.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/translation.h"
#include "statistics/process_study.h"
#include "statistics/summary.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kCurvePoints = 120;
constexpr double kCurveSigmas = 4.0;
constexpr double kHeadroom = 1.08;

}  // namespace

HistogramPlot::HistogramPlot(QWidget* parent)
    : Plot(parent), bars_(new QCPBars(xAxis, yAxis)), normal_(addGraph()) {
  setObjectName(QStringLiteral("Histogram"));
  yAxis->setLabel(Text::tr("度数"));
  bars_->setPen(QPen(theme::kAccent, 1.0));
  bars_->setBrush(QColor(0xb8, 0xd2, 0xea));
  bars_->setAntialiased(false);
  normal_->setPen(QPen(theme::kText, 1.6));
}

void HistogramPlot::Show(const QString& title, std::span<const double> values,
                         const statistics::SpecificationLimits& limits) {
  clearItems();
  bars_->data()->clear();
  normal_->data()->clear();
  xAxis->setLabel(title);
  const auto histogram = statistics::MakeHistogram(values);
  const auto summary = statistics::Summarise(values);
  if (!histogram || !summary) {
    replot(rpQueuedReplot);
    return;
  }
  double highest = 0.0;
  for (std::size_t bin = 0; bin < histogram->counts.size(); ++bin) {
    const auto count = static_cast<double>(histogram->counts[bin]);
    bars_->addData(histogram->Centre(bin), count);
    highest = std::max(highest, count);
  }
  bars_->setWidth(histogram->width);
  const double area = static_cast<double>(summary->n) * histogram->width;
  const double top = area / (summary->s * std::sqrt(2.0 * std::numbers::pi));
  for (int i = 0; i <= kCurvePoints; ++i) {
    const double z = kCurveSigmas * (2.0 * i / kCurvePoints - 1.0);
    normal_->addData(summary->mean + z * summary->s, top * std::exp(-0.5 * z * z));
  }
  double left = std::min(summary->min, summary->mean - kCurveSigmas * summary->s);
  double right = std::max(summary->max, summary->mean + kCurveSigmas * summary->s);
  const double reach = right - left;
  for (const auto& limit : {limits.lower, limits.upper}) {
    if (!limit) {
      continue;
    }
    auto* line = new QCPItemStraightLine(this);
    line->point1->setCoords(*limit, 0.0);
    line->point2->setCoords(*limit, 1.0);
    line->setPen(QPen(QColor(0x8a, 0x5a, 0x00), 1.4, Qt::DashDotLine));
    if (*limit > left - reach && *limit < right + reach) {
      left = std::min(left, *limit);
      right = std::max(right, *limit);
    }
  }
  const double margin = 0.03 * (right - left);
  xAxis->setRange(left - margin, right + margin);
  yAxis->setRange(0.0, std::max(highest, top) * kHeadroom);
  replot(rpQueuedReplot);
}

}  // namespace vexa

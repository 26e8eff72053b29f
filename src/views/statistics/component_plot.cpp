// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/component_plot.h"

#include <algorithm>
#include <array>

#include "base/translation.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kBarWidth = 0.34;
constexpr double kSpreadSigmas = 6.0;  // of a component against the tolerance

}  // namespace

ComponentPlot::ComponentPlot(QWidget* parent)
    : Plot(parent), ofTotal_(new QCPBars(xAxis, yAxis)), ofTolerance_(new QCPBars(xAxis, yAxis)) {
  setObjectName(QStringLiteral("Components"));
  yAxis->setLabel(QStringLiteral("%"));
  ofTotal_->setName(Text::tr("全変動に対する割合"));
  ofTotal_->setPen(Qt::NoPen);
  ofTotal_->setBrush(theme::kAccent);
  ofTolerance_->setName(Text::tr("公差に対する割合"));
  ofTolerance_->setPen(Qt::NoPen);
  ofTolerance_->setBrush(QColor(0xd9, 0x9a, 0x2b));
  for (QCPBars* bars : {ofTotal_, ofTolerance_}) {
    bars->setWidth(kBarWidth);
    bars->setAntialiased(false);
  }
  xAxis->setSubTicks(false);
  legend->setVisible(true);
  legend->setFont(font());
  legend->setBorderPen(QPen(theme::kBorder));
  axisRect()->insetLayout()->setInsetAlignment(0, Qt::AlignTop | Qt::AlignLeft);
  Clear();
}

void ComponentPlot::Clear() {
  ofTotal_->data()->clear();
  ofTolerance_->data()->clear();
  xAxis->setTicker(QSharedPointer<QCPAxisTickerText>(new QCPAxisTickerText));
  xAxis->setRange(0.0, 1.0);
  yAxis->setRange(0.0, 100.0);
  replot(rpQueuedReplot);
}

void ComponentPlot::Show(const statistics::GaugeStudy& study, std::optional<double> tolerance) {
  const std::array<std::pair<QString, double>, 5> components{
      {{Text::tr("ゲージ R&R"), study.grr},
       {Text::tr("繰返し性"), study.repeatability},
       {Text::tr("再現性"), study.reproducibility},
       {Text::tr("交互作用"), study.interaction},
       {Text::tr("部品"), study.part}}};
  ofTotal_->data()->clear();
  ofTolerance_->data()->clear();
  const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
  const double shift = tolerance ? 0.5 * kBarWidth : 0.0;
  double greatest = 100.0;
  for (std::size_t i = 0; i < components.size(); ++i) {
    const auto place = static_cast<double>(i + 1);
    ticker->addTick(place, components[i].first);
    ofTotal_->addData(place - shift, 100.0 * components[i].second / study.total);
    if (tolerance) {
      const double percent = 100.0 * kSpreadSigmas * components[i].second / *tolerance;
      ofTolerance_->addData(place + shift, percent);
      greatest = std::max(greatest, percent);
    }
  }
  if (tolerance) {
    ofTolerance_->addToLegend();
  } else {
    ofTolerance_->removeFromLegend();
  }
  xAxis->setTicker(ticker);
  xAxis->setRange(0.4, static_cast<double>(components.size()) + 0.6);
  constexpr double kRoomForLegend = 1.3;
  yAxis->setRange(0.0, greatest * kRoomForLegend);
  replot(rpQueuedReplot);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/light_panel.h"

#include <QVBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "instrument/wavelength_mapping.h"
#include "views/common/plot.h"
#include "views/common/theme.h"

namespace vexa {

/// The line of the highest counts, the newest at its right end.
class LightTrend : public Plot {
 public:
  explicit LightTrend(QWidget* parent) : Plot(parent), line_(addGraph()) {
    constexpr double kTop = 4500.0;
    constexpr int kHeight = 90;
    setObjectName(QStringLiteral("LightTrend"));
    setMinimumHeight(kHeight);
    line_->setPen(QPen(theme::kAccent, 1.6));
    yAxis->setRange(0.0, kTop);
    xAxis->setTickLabels(false);
    xAxis->setRange(1 - LightPanel::kTrendFrames, 1.0);
    auto* level = new QCPItemStraightLine(this);
    level->point1->setCoords(0.0, kLargestUnsaturated);
    level->point2->setCoords(1.0, kLargestUnsaturated);
    level->setPen(QPen(theme::kBad, 1.2, Qt::DashLine));
  }

  void Add(double peak) {
    line_->addData(++frames_, peak);
    line_->data()->removeBefore(frames_ - LightPanel::kTrendFrames);
    xAxis->setRange(frames_ - LightPanel::kTrendFrames, frames_ + 1.0);
    replot(rpQueuedReplot);
  }

  void Clear() {
    line_->data()->clear();
    replot(rpQueuedReplot);
  }

 private:
  QCPGraph* line_;
  double frames_ = 0.0;
};

LightPanel::LightPanel(QWidget* parent)
    : QWidget(parent), peak_(new QLabel), trend_(new LightTrend(this)) {
  setObjectName(QStringLiteral("LightPanel"));
  peak_->setObjectName(QStringLiteral("LightPeak"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(peak_);
  layout->addWidget(trend_, 1);
}

void LightPanel::Show(bool saturated, const RawSpectrum& counts) {
  const auto highest = std::ranges::max_element(counts.Values());
  const int nm = RawSpectrum::kFirstNm + static_cast<int>(highest - counts.Values().begin());
  const int percent = static_cast<int>(100.0 * *highest / kLargestUnsaturated);
  const QString text = Text::tr("最大 %1 (%2 nm)  %3%").arg(qRound(*highest)).arg(nm).arg(percent);
  peak_->setText(saturated ? text + QStringLiteral("  ") + Text::tr("飽和") : text);
  peak_->setStyleSheet(saturated
                           ? QStringLiteral("color:%1; font-weight:bold;").arg(theme::kBad.name())
                           : QString());
  trend_->Add(*highest);
}

void LightPanel::ShowNone(const QString& why) {
  peak_->setText(why);
  peak_->setStyleSheet({});
}

void LightPanel::Clear() {
  trend_->Clear();
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/axis_scale.h"

#include <algorithm>
#include <cmath>

namespace vexa {
namespace {

// What an axis leaves of the plot for its labels, about.
constexpr double kBesidesAxis = 80.0;
constexpr double kGapOfLabels = 10.0;
constexpr double kGapOfTicks = 4.0;

/// Ticks at an interval with as many labels as the plot has room for in its present size, and ticks
/// between them where these stand apart.
class ThinnedTicker : public QCPAxisTickerFixed {
 public:
  explicit ThinnedTicker(const QCPAxis& axis) : axis_(axis) {}

 protected:
  QVector<QString> createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                     QChar formatChar, int precision) override {
    QVector<QString> labels =
        QCPAxisTickerFixed::createLabelVector(ticks, locale, formatChar, precision);
    const QFontMetricsF metrics(axis_.tickLabelFont());
    const bool horizontal = axis_.orientation() == Qt::Horizontal;
    double needed = metrics.height();
    for (const QString& label : labels) {
      needed =
          horizontal ? std::max(needed, metrics.horizontalAdvance(label) + kGapOfLabels) : needed;
    }
    qint64 every = 1;
    for (const qint64 step : {2, 5, 10, 20, 50, 100}) {
      every = static_cast<double>(every) * Pitch() < needed ? step : every;
    }
    for (qsizetype i = 0; i < labels.size(); ++i) {
      if (std::llround(ticks[i] / tickStep()) % every != 0) {
        labels[i].clear();
      }
    }
    return labels;
  }

  int getSubTickCount(double tickStep) override {
    const int count = QCPAxisTickerFixed::getSubTickCount(tickStep);
    return Pitch() < (count + 1) * kGapOfTicks ? 0 : count;
  }

 private:
  /// From one tick to the next, in pixels, about.
  [[nodiscard]] double Pitch() const {
    const QRect place = axis_.parentPlot()->viewport();
    const int side = axis_.orientation() == Qt::Horizontal ? place.width() : place.height();
    return tickStep() / axis_.range().size() * std::max(side - kBesidesAxis, 1.0);
  }

  const QCPAxis& axis_;
};

}  // namespace

double RoundedUp(double value) {
  const double decade = std::pow(10.0, std::floor(std::log10(value)));
  for (const double step : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (value <= step * decade * (1.0 + 1e-9)) {
      return step * decade;
    }
  }
  return 10.0 * decade;
}

void SetTicks(QCPAxis& axis, double interval) {
  constexpr double kMostTicks = 100.0;
  if (interval <= 0.0 || axis.range().size() / interval > kMostTicks) {
    axis.setTicker(QSharedPointer<QCPAxisTicker>::create());
    return;
  }
  auto ticker = QSharedPointer<ThinnedTicker>::create(axis);
  ticker->setTickStep(interval);
  ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
  axis.setTicker(ticker);
}

}  // namespace vexa

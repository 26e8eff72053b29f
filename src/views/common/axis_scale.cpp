// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/axis_scale.h"

#include <cmath>

namespace vexa {

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
  auto ticker = QSharedPointer<QCPAxisTickerFixed>::create();
  ticker->setTickStep(interval);
  ticker->setScaleStrategy(QCPAxisTickerFixed::ssNone);
  axis.setTicker(ticker);
}

}  // namespace vexa

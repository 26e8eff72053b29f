// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/line_ticker.h"

#include <algorithm>
#include <cmath>

namespace vexa {

LineTicker::LineTicker(const QCPAxis& axis, std::vector<std::pair<QString, double>> lines)
    : axis_(axis), lines_(std::move(lines)) {
  for (const auto& [name, value] : lines_) {
    addTick(value, name + u' ' + QString::number(value, 'g', 5).toUpper());
  }
}

QVector<double> LineTicker::createTickVector(double /*tickStep*/, const QCPRange& range) {
  const double height = QFontMetricsF(axis_.tickLabelFont()).height();
  const double room = height / std::max(1, axis_.axisRect()->height()) * range.size();
  QVector<double> ticks;
  for (const auto& [name, value] : lines_) {
    const double at = value;
    if (range.contains(at) && std::ranges::none_of(ticks, [at, room](double other) {
          return std::abs(other - at) < room;
        })) {
      ticks.append(at);
    }
  }
  std::ranges::sort(ticks);
  return ticks;
}

}  // namespace vexa

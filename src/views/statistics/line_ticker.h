// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <utility>
#include <vector>

namespace vexa {

/// Names horizontal lines at an axis. A name that would cover one of an earlier line is left out,
/// by the height that the axis has at the time.
class LineTicker : public QCPAxisTickerText {
 public:
  /// `axis` outlives the ticker.
  LineTicker(const QCPAxis& axis, std::vector<std::pair<QString, double>> lines);

 protected:
  QVector<double> createTickVector(double tickStep, const QCPRange& range) override;

 private:
  const QCPAxis& axis_;
  std::vector<std::pair<QString, double>> lines_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "statistics/capability.h"
#include "views/common/plot.h"

namespace vexa {

/// How often values came, with the normal distribution of their mean and standard deviation, and
/// the limits of the tolerance.
class HistogramPlot : public Plot {
  Q_OBJECT

 public:
  explicit HistogramPlot(QWidget* parent = nullptr);

  /// Values that have no histogram leave it empty.
  void Show(const QString& title, std::span<const double> values,
            const statistics::SpecificationLimits& limits);

 private:
  QCPBars* bars_;
  QCPGraph* normal_;
};

}  // namespace vexa

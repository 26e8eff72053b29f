// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/gauge_study.h"
#include "views/common/plot.h"

namespace vexa {

/// The components of a gauge study as bars: percent of the total spread, and beside them of the
/// tolerance where there is one.
class ComponentPlot : public Plot {
  Q_OBJECT

 public:
  explicit ComponentPlot(QWidget* parent = nullptr);

  void Show(const statistics::GaugeStudy& study, std::optional<double> tolerance);
  void Clear();

 private:
  QCPBars* ofTotal_;
  QCPBars* ofTolerance_;
};

}  // namespace vexa

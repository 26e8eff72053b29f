// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

namespace vexa {

/// A legend in a row of its own above the axes, as wide as the plot. The names stand whole in up to
/// three rows; where these do not hold them they lose their middle, but never the number of their
/// slot, in up to five. It is laid out anew for every size that the plot is drawn in, so also for
/// paper and pictures.
class FittedLegend : public QCPLegend {
  Q_OBJECT

 public:
  /// What the legend shows, in this order, in place of what it showed before.
  void SetEntries(const std::vector<std::pair<QCPGraph*, QString>>& entries);

  void update(UpdatePhase phase) override;

 private:
  void Fit(double width);

  std::vector<std::pair<QCPGraph*, QString>> entries_;
  double fittedWidth_ = 0.0;
};

}  // namespace vexa

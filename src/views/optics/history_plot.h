// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "optics/thickness_history.h"
#include "views/common/plot.h"

namespace vexa {

/// The thicknesses of a history over their point numbers: one of the extrema is a disc, in doubt an
/// amber triangle; one of the film fit is a hollow diamond, around that of the extrema or alone. A
/// legend tells the marks as soon as there are others than discs.
class HistoryPlot : public Plot {
  Q_OBJECT

 public:
  explicit HistoryPlot(QWidget* parent = nullptr);

  /// `cursor` is the number of the marked point, 0 for none.
  void Show(const ThicknessHistory& history, const ThicknessScale& scale, int cursor);

 private:
  FittedLegend* legend_;
  QCPGraph* line_;
  QCPGraph* extrema_;
  QCPGraph* doubtful_;
  QCPGraph* fits_;
  QCPItemStraightLine* cursorLine_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "standards/reflectance_band.h"
#include "views/graph/abscissa.h"

namespace vexa {

/// The limits of the reflectance behind the curves of a graph: a pale area between two lines for
/// each segment, a bar for a single wavelength. It has no place in the legend.
class BandDrawing {
 public:
  /// Makes a layer of its own, below the plot's current one.
  BandDrawing(QCustomPlot& plot, Abscissa abscissa);

  /// Takes the place of the band shown before; the caller redraws.
  void Show(const std::vector<std::vector<BandPoint>>& band);

  /// The highest limit shown; 0 without a band.
  [[nodiscard]] double HighestLimit() const { return highest_; }

 private:
  QCPGraph* AddLine(const QVector<QCPGraphData>& points);
  void AddSegment(const std::vector<BandPoint>& segment);
  void AddBar(const BandPoint& point);

  QCustomPlot& plot_;
  Abscissa abscissa_;
  QCPLayer* layer_;
  std::vector<QCPGraph*> lines_;
  double highest_ = 0.0;
};

}  // namespace vexa

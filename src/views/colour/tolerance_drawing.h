// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "colour/chromaticity_diagram.h"

namespace vexa {

/// The tolerances of a standard in an a*b* diagram: circles for limits of chroma, lines from the
/// origin for those of hue, dashed for the reference values.
class ToleranceDrawing {
 public:
  /// Draws into the plot's layer "main".
  explicit ToleranceDrawing(QCustomPlot& plot) : plot_(plot) {}

  /// Takes the place of the region shown before, in a diagram whose axes reach from -reach to
  /// reach. The caller redraws.
  void Show(const ToleranceRegion& region, double reach);

 private:
  void AddCircle(double radius, const QPen& pen, double reach);
  void AddHueLine(double degrees, const QPen& pen, double reach);
  void Take(QCPAbstractItem* item);

  QCustomPlot& plot_;
  std::vector<QCPAbstractItem*> items_;
};

}  // namespace vexa

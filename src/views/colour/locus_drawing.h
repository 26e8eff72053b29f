// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "colour/chromaticity_diagram.h"

namespace vexa {

/// The spectral locus in an xy diagram: a closed smooth curve with some of its wavelengths.
class LocusDrawing {
 public:
  /// Draws into the plot's layer "main", with labels in this font.
  LocusDrawing(QCustomPlot& plot, const QFont& labelFont);

  /// Takes the place of the locus shown before; no points leave nothing. The caller redraws.
  void Show(const std::vector<LocusPoint>& points);

  /// Whether the points shown have their wavelengths beside them; they have until it is called.
  void ShowLabels(bool shown);

 private:
  void AddLabel(const LocusPoint& point);

  QCustomPlot& plot_;
  QFont labelFont_;
  QCPCurve* curve_;
  QCPCurve* dots_;
  std::vector<QCPItemText*> labels_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "statistics/spectrum_statistics.h"
#include "views/graph/abscissa.h"

namespace vexa {

/// Mean, standard deviation and envelope of several spectra over the curves of a graph: the
/// envelope as a pale area, one standard deviation about the mean as a darker one, the mean as a
/// line. It has no place in the legend.
class SpreadDrawing {
 public:
  /// Makes layers of its own: the areas below the plot's current one, the mean above it.
  SpreadDrawing(QCustomPlot& plot, Abscissa abscissa);

  /// Takes the place of what was shown before; null shows nothing. The caller redraws.
  void Show(const statistics::SpectrumStatistics* spread);

 private:
  QCPGraph* AddLine(const ReflectanceSpectrum& base, const ReflectanceSpectrum& deviation,
                    double factor, QCPLayer* layer);
  void AddArea(QCPGraph* lower, QCPGraph* upper, int alpha);

  QCustomPlot& plot_;
  Abscissa abscissa_;
  QCPLayer* areas_;
  QCPLayer* mean_;
  std::vector<QCPGraph*> lines_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

/// The look that all graphs of the program share: a closed frame, a pale grid, inner ticks.
void ApplyPlotStyle(QCustomPlot& plot);

/// Puts the legend into a row of its own above the axes, at most `columns` entries wide, so that it
/// never covers a curve.
void PlaceLegendAbove(QCustomPlot& plot, int columns);

}  // namespace vexa

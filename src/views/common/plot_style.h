// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

namespace vexa {

/// The look that all graphs of the program share: a closed frame, a pale grid, inner ticks.
void ApplyPlotStyle(QCustomPlot& plot);

}  // namespace vexa

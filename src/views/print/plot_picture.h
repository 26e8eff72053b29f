// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPicture>
#include <QSize>

class QCustomPlot;

namespace vexa {

/// A plot of the size, in its own pixels, as lines and texts that stay sharp on paper.
[[nodiscard]] QPicture PlotPicture(QCustomPlot& plot, const QSize& size);

}  // namespace vexa

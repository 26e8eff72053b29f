// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

class QCustomPlot;
class QPainter;
class QPicture;

namespace vexa {

/// A plot of the size, in its own pixels, as lines and texts that stay sharp on paper.
[[nodiscard]] QPicture PlotDrawing(QCustomPlot& plot, const QSize& size);

/// Draws such a picture from the corner on; a pixel of the plot becomes `scale` wide.
void PlayDrawing(QPainter& painter, const QPointF& corner, double scale, const QPicture& picture);

}  // namespace vexa

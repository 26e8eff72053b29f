// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace vexa {

/// Pages ready to be painted. Their lengths are tenths of a millimetre on any device, counted from
/// the upper left corner within the margins.
struct PrintedPages {
  int count = 0;
  std::function<void(QPainter& painter, int page)> paint;  ///< `page` is 0..count - 1
};

/// Lays something out for pages of a size within the margins.
using PageMaker = std::function<PrintedPages(const QSizeF& page)>;

/// A page that takes any size.
[[nodiscard]] PageMaker SinglePage(
    const std::function<void(QPainter& painter, const QRectF& page)>& paint);

/// Paints all pages onto a device whose page layout is set; false when the device fails.
[[nodiscard]] bool PaintPages(QPagedPaintDevice& device, const PageMaker& make);

/// Gives the painter the program's font, in tenths of a millimetre, and the colour of text.
void SetPageFont(QPainter& painter, int size, bool bold = false);

}  // namespace vexa

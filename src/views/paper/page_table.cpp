// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/page_table.h"

#include <QPainter>
#include <algorithm>

#include "views/common/theme.h"
#include "views/paper/printed_pages.h"

namespace vexa {
namespace {

constexpr double kCellPadding = 10.0;
constexpr int kCaptionSize = 32;
constexpr double kRuleWidth = 3.0;
constexpr double kFineRuleWidth = 1.0;

void DrawRule(QPainter& painter, const QRectF& place, double y, const QColor& colour,
              double width) {
  const QPen before = painter.pen();
  painter.setPen(QPen(colour, width));
  painter.drawLine(QLineF(place.left(), y, place.right(), y));
  painter.setPen(before);
}

void DrawText(QPainter& painter, const QRectF& cell, Qt::Alignment alignment, const QString& text) {
  const QRectF inner = cell.adjusted(kCellPadding, 0.0, -kCellPadding, 0.0);
  const QFontMetricsF metrics(painter.font());
  painter.drawText(inner, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   metrics.elidedText(text, Qt::ElideRight, inner.width()));
}

}  // namespace

void PageTable::Paint(QPainter& painter, const QRectF& place) const {
  double natural = 0.0;
  for (const Column& column : columns) {
    natural += column.width;
  }
  const double stretch = place.width() / natural;
  const int size = std::max(1, static_cast<int>(fontSize * std::min(1.0, stretch)));

  double y = place.top();
  if (!caption.isEmpty()) {
    SetPageFont(painter, kCaptionSize, true);
    painter.drawText(QRectF(place.left(), y, place.width(), CaptionHeight()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    y += CaptionHeight();
  }
  const auto forEachCell = [&](double top, auto draw) {
    double x = place.left();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const double width = columns[i].width * stretch;
      draw(i, QRectF(x, top, width, rowHeight));
      x += width;
    }
  };
  SetPageFont(painter, size, true);
  forEachCell(y, [&](std::size_t i, const QRectF& cell) {
    DrawText(painter, cell, columns[i].alignment, columns[i].title);
  });
  y = place.top() + HeadHeight();
  DrawRule(painter, place, y - 3.0, theme::kMutedText, kRuleWidth);

  SetPageFont(painter, size);
  int number = 0;
  for (const std::vector<Cell>& row : rows) {
    forEachCell(y, [&](std::size_t i, const QRectF& cell) {
      if (row[i].alarming) {
        SetPageFont(painter, size, true);
        painter.setPen(theme::kBad);
      }
      DrawText(painter, cell, columns[i].alignment, row[i].text);
      if (row[i].alarming) {
        SetPageFont(painter, size);
      }
    });
    y += rowHeight;
    if (++number % rowsPerRule == 0) {
      DrawRule(painter, place, y, theme::kBorder, kFineRuleWidth);
    }
  }
}

}  // namespace vexa

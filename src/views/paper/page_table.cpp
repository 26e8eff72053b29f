// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/page_table.h"

#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "views/common/theme.h"
#include "views/paper/printed_pages.h"

namespace vexa {
namespace {

constexpr double kCellPadding = 10.0;
constexpr int kCaptionSize = 32;
constexpr double kRuleGap = 6.0;  // below the titles
constexpr double kRuleWidth = 3.0;
constexpr double kFineRuleWidth = 1.0;
constexpr double kHighestRow = 30.0 * 42.0;

void DrawRule(QPainter& painter, const QRectF& place, double y, const QColor& colour,
              double width) {
  const QPen before = painter.pen();
  painter.setPen(QPen(colour, width));
  painter.drawLine(QLineF(place.left(), y, place.right(), y));
  painter.setPen(before);
}

QRectF Inner(const QRectF& cell) {
  return cell.adjusted(kCellPadding, 0.0, -kCellPadding, 0.0);
}

QFont PageFont(int size, bool bold = false) {
  QFont font;
  font.setPixelSize(size);
  font.setBold(bold);
  return font;
}

// A formula's parameters may stand in several lines: the line may end behind a comma.
QString Breakable(const QString& text) {
  return QString(text).replace(u',', QStringLiteral(",\u200b"));
}

// Between words; anywhere in a text of which one alone is too wide.
int Wrapping(const QFontMetricsF& metrics, const QString& text, double width) {
  static const QRegularExpression kBreak(QStringLiteral("[ \u200b]"));
  const QStringList words = text.split(kBreak);
  return std::ranges::any_of(words,
                             [&](auto& word) { return metrics.horizontalAdvance(word) > width; })
             ? Qt::TextWrapAnywhere
             : Qt::TextWordWrap;
}

double WrappedHeight(const QFontMetricsF& metrics, const QRectF& inner, const QString& text) {
  return metrics.boundingRect(inner, Wrapping(metrics, text, inner.width()), text).height();
}

void DrawText(QPainter& painter, const QRectF& cell, const PageTable::Column& column,
              const QString& text) {
  const QRectF inner = Inner(cell);
  const QFontMetricsF metrics(painter.font());
  const int alignment = static_cast<int>(column.alignment | Qt::AlignVCenter);
  if (column.wraps && metrics.horizontalAdvance(text) > inner.width()) {
    const QString broken = Breakable(text);
    painter.drawText(inner, alignment | Wrapping(metrics, broken, inner.width()), broken);
    return;
  }
  painter.drawText(inner, alignment | Qt::TextSingleLine,
                   metrics.elidedText(text, Qt::ElideMiddle, inner.width()));
}

}  // namespace

double PageTable::Natural(const Column& column) const {
  double width = column.width;
  if (wholeTitles) {
    const QFontMetricsF metrics(PageFont(fontSize, true));
    for (const QString& word : column.title.split(u' ')) {
      width = std::max(width, metrics.horizontalAdvance(word) + 2.0 * kCellPadding + 1.0);
    }
  }
  return width;
}

double PageTable::Stretch(double width) const {
  double natural = 0.0;
  for (const Column& column : columns) {
    natural += Natural(column);
  }
  return width / natural;
}

int PageTable::FontSize(double width) const {
  return std::max(1, static_cast<int>(fontSize * std::min(1.0, Stretch(width))));
}

double PageTable::HeadHeight(double width) const {
  const QFontMetricsF metrics(PageFont(FontSize(width), true));
  double height = rowHeight;
  for (const Column& column : columns) {
    const QRectF inner = Inner(QRectF(0.0, 0.0, Natural(column) * Stretch(width), kHighestRow));
    if (wholeTitles && metrics.horizontalAdvance(column.title) > inner.width()) {
      const double lines = WrappedHeight(metrics, inner, column.title);
      height = std::max(height, lines + rowHeight - metrics.lineSpacing());
    }
  }
  return CaptionHeight() + height + kRuleGap;
}

double PageTable::RowHeight(const std::vector<Cell>& row, double width) const {
  const QFontMetricsF metrics(PageFont(FontSize(width)));
  double height = rowHeight;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const QRectF inner = Inner(QRectF(0.0, 0.0, Natural(columns[i]) * Stretch(width), kHighestRow));
    if (columns[i].wraps && metrics.horizontalAdvance(row[i].text) > inner.width()) {
      const double lines = WrappedHeight(metrics, inner, Breakable(row[i].text));
      height = std::max(height, std::min(lines, kHighestRow) + rowHeight - metrics.lineSpacing());
    }
  }
  return height;
}

double PageTable::Height(double width) const {
  double height = HeadHeight(width);
  for (const std::vector<Cell>& row : rows) {
    height += RowHeight(row, width);
  }
  return height;
}

void PageTable::Paint(QPainter& painter, const QRectF& place) const {
  const double stretch = Stretch(place.width());
  const int size = FontSize(place.width());

  double y = place.top();
  if (!caption.isEmpty()) {
    SetPageFont(painter, kCaptionSize, true);
    painter.drawText(QRectF(place.left(), y, place.width(), CaptionHeight()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    y += CaptionHeight();
  }
  const auto forEachCell = [&](double top, double height, auto draw) {
    double x = place.left();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const double width = Natural(columns[i]) * stretch;
      draw(i, QRectF(x, top, width, height));
      x += width;
    }
  };
  SetPageFont(painter, size, true);
  const double head = HeadHeight(place.width());
  forEachCell(y, head - CaptionHeight() - kRuleGap, [&](std::size_t i, const QRectF& cell) {
    DrawText(painter, cell, {{}, 0.0, columns[i].alignment, wholeTitles}, columns[i].title);
  });
  y = place.top() + head;
  DrawRule(painter, place, y - 3.0, theme::kMutedText, kRuleWidth);

  SetPageFont(painter, size);
  int number = 0;
  for (const std::vector<Cell>& row : rows) {
    const double height = RowHeight(row, place.width());
    forEachCell(y, height, [&](std::size_t i, const QRectF& cell) {
      if (row[i].alarming) {
        SetPageFont(painter, size, true);
        painter.setPen(theme::kBad);
      }
      DrawText(painter, cell, columns[i], row[i].text);
      if (row[i].alarming) {
        SetPageFont(painter, size);
      }
    });
    y += height;
    if (++number % rowsPerRule == 0) {
      DrawRule(painter, place, y, theme::kBorder, kFineRuleWidth);
    }
  }
}

}  // namespace vexa

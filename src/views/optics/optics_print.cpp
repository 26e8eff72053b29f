// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/optics_print.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"
#include "optics/thickness.h"
#include "views/common/theme.h"
#include "views/optics/history_plot.h"
#include "views/paper/plot_drawing.h"

namespace vexa {
namespace {

// Pages are laid out 720 units wide, whatever the resolution of the device.
constexpr double kPageWidth = 720.0;
constexpr double kRowHeight = 19.0;

void SetFont(QPainter& painter, int size, bool bold) {
  QFont font = painter.font();
  font.setPixelSize(size);
  font.setBold(bold);
  painter.setFont(font);
}

// Scales the painter to the page and writes the caption; returns what is left of the page.
QRectF BeginPage(QPainter& painter, const QRectF& page, const QString& caption) {
  const double scale = page.width() / kPageWidth;
  painter.translate(page.topLeft());
  painter.scale(scale, scale);
  painter.setPen(theme::kText);
  SetFont(painter, 20, true);
  painter.drawText(QRectF(0.0, 0.0, kPageWidth, 30.0), Qt::AlignLeft | Qt::AlignVCenter, caption);
  painter.setPen(QPen(theme::kBorder, 1.0));
  painter.drawLine(QPointF(0.0, 36.0), QPointF(kPageWidth, 36.0));
  painter.setPen(theme::kText);
  SetFont(painter, 13, false);
  return {0.0, 48.0, kPageWidth, page.height() / scale - 48.0};
}

void DrawRow(QPainter& painter, const QRectF& row, const QStringList& cells, double cellWidth) {
  for (qsizetype i = 0; i < cells.size(); ++i) {
    const QRectF cell(row.left() + static_cast<double>(i) * cellWidth, row.top(), cellWidth - 8.0,
                      row.height());
    painter.drawText(cell, Qt::AlignRight | Qt::AlignVCenter, cells[i]);
  }
}

void DrawPlot(QPainter& painter, const QRectF& place, const ThicknessHistory& history,
              const ThicknessScale& scale) {
  HistoryPlot plot;
  plot.Show(history, scale, 0);
  PlayDrawing(painter, place.topLeft(), 1.0, PlotDrawing(plot, place.size().toSize()));
}

}  // namespace

void PaintHistoryPage(QPainter& painter, const QRectF& page, const ThicknessHistory& history,
                      const ThicknessScale& scale) {
  constexpr double kPlotHeight = 400.0;
  constexpr int kColumns = 5;
  constexpr int kRows = ThicknessHistory::kCapacity / kColumns;
  constexpr double kColumnWidth = kPageWidth / kColumns;
  painter.save();
  const QRectF body = BeginPage(painter, page, Text::tr("膜厚ｸﾞﾗﾌ"));
  DrawPlot(painter, {body.topLeft(), QSizeF(kPageWidth, kPlotHeight)}, history, scale);
  double top = body.top() + kPlotHeight + 14.0;
  painter.drawText(
      QRectF(0.0, top, kPageWidth, kRowHeight), Qt::AlignLeft | Qt::AlignVCenter,
      Text::tr("全ﾃﾞｰﾀ数 %1    膜厚 %2").arg(history.count).arg(ThicknessUnit(history.physical)));
  top += 1.5 * kRowHeight;
  int point = 0;
  for (const double thicknessNm : history.Points()) {
    const int column = point / kRows;
    const QRectF row(column * kColumnWidth, top + point % kRows * kRowHeight, kColumnWidth,
                     kRowHeight);
    ++point;
    DrawRow(painter, row, {QString::number(point), FormatNumber(thicknessNm, u"###0.0")},
            kColumnWidth / 2.0);
  }
  painter.restore();
}

QStringList WaveListTitles() {
  return {QStringLiteral("No."), QStringLiteral("P/V"), Text::tr("波長[nm]"),
          Text::tr("反射率[%]")};
}

void PaintWaveListPage(QPainter& painter, const QRectF& page, const QString& whose,
                       const ExtremumList& list) {
  constexpr double kWhoseHeight = 2.0 * kRowHeight;
  constexpr double kColumnWidth = 110.0;
  painter.save();
  const QRectF body = BeginPage(painter, page, Text::tr("波長リスト"));
  painter.drawText(QRectF(body.topLeft(), QSizeF(body.width(), kWhoseHeight)),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWrapAnywhere, whose);
  const QStringList rows = ExtremumRows(list);
  // The longest list, 49 rows, fits onto a page of any shape.
  const double height = std::min(
      kRowHeight, (body.height() - kWhoseHeight) / static_cast<double>(ExtremumList::kLimit + 1));
  SetFont(painter, static_cast<int>(std::max(1.0, height * 0.7)), false);
  QRectF row(body.topLeft() + QPointF(0.0, kWhoseHeight), QSizeF(body.width(), height));
  DrawRow(painter, row, WaveListTitles(), kColumnWidth);
  for (const QString& text : rows) {
    row.translate(0.0, height);
    DrawRow(painter, row, text.split(u'\t'), kColumnWidth);
  }
  painter.restore();
}

}  // namespace vexa

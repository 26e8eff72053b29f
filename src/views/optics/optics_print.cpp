// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/optics_print.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>
#include <map>
#include <vector>

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

void DrawRow(QPainter& painter, const QRectF& row, const QStringList& cells,
             const std::vector<double>& widths) {
  constexpr double kPadding = 8.0;
  double left = row.left();
  for (qsizetype i = 0; i < cells.size(); ++i) {
    const double width = widths[static_cast<std::size_t>(i)];
    painter.drawText(QRectF(left, row.top(), width - kPadding, row.height()),
                     Qt::AlignRight | Qt::AlignVCenter, cells[i]);
    left += width;
  }
}

QString NoteMark(const HistoryNote& note) {
  return note.fitted ? QStringLiteral("◆") : note.doubts.empty() ? QString() : QStringLiteral("▲");
}

// What the marks say, where there are any.
QString NoteLegend(const ThicknessHistory& history) {
  return std::ranges::all_of(history.Notes(), &HistoryNote::IsEmpty)
             ? QString()
             : QStringLiteral("    ") + Text::tr("▲ 疑いあり   ◆ 膜厚ﾌｨｯﾄ");
}

// The doubts in words, a line each, with the points that they are about.
QStringList DoubtLines(const ThicknessHistory& history) {
  std::map<ThicknessDoubt, QStringList> points;
  for (int point = 1; point <= history.count; ++point) {
    for (const ThicknessDoubt doubt : history.notes[static_cast<std::size_t>(point) - 1].doubts) {
      points[doubt] << QString::number(point);
    }
  }
  QStringList lines;
  for (const auto& [doubt, of] : points) {
    lines
        << QStringLiteral("▲ %1: %2").arg(of.join(QStringLiteral(", ")), ThicknessDoubtText(doubt));
  }
  return lines;
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
      Text::tr("全ﾃﾞｰﾀ数 %1    膜厚 %2").arg(history.count).arg(ThicknessUnit(history.physical)) +
          NoteLegend(history));
  top += 1.5 * kRowHeight;
  int point = 0;
  const bool withFits = std::ranges::any_of(
      history.Notes(), [](const HistoryNote& note) { return note.fitNm > 0.0; });
  constexpr double kNumber = 24.0;
  constexpr double kValue = (kColumnWidth - kNumber) / 2.0;
  const std::vector<double> widths = withFits ? std::vector<double>{kNumber, kValue, kValue}
                                              : std::vector<double>(2, kColumnWidth / 2.0);
  SetFont(painter, withFits ? 10 : 13, false);
  for (const double thicknessNm : history.Points()) {
    const int column = point / kRows;
    const QRectF row(column * kColumnWidth, top + point % kRows * kRowHeight, kColumnWidth,
                     kRowHeight);
    ++point;
    const HistoryNote& note = history.notes[static_cast<std::size_t>(point) - 1];
    QStringList cells{QString::number(point),
                      NoteMark(note) + FormatNumber(thicknessNm, u"###0.0").trimmed()};
    if (note.fitNm > 0.0) {
      cells << QStringLiteral("◆") + FormatNumber(note.fitNm, u"0.0");
    }
    DrawRow(painter, row, cells, widths);
  }
  SetFont(painter, 13, false);
  top += (kRows + 0.5) * kRowHeight;
  painter.drawText(QRectF(0.0, top, kPageWidth, body.bottom() - top),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                   DoubtLines(history).join(u'\n'));
  painter.restore();
}

QStringList WaveListTitles() {
  return {QStringLiteral("No."), QStringLiteral("P/V"), Text::tr("波長[nm]"),
          Text::tr("反射率[%]")};
}

void PaintWaveListPage(QPainter& painter, const QRectF& page, const QString& whose,
                       const QString& doubts, const ExtremumList& list) {
  const double whoseHeight =
      (2.0 + static_cast<double>(doubts.split(u'\n', Qt::SkipEmptyParts).size())) * kRowHeight;
  const std::vector<double> widths(4, 110.0);
  painter.save();
  const QRectF body = BeginPage(painter, page, Text::tr("波長リスト"));
  painter.drawText(QRectF(body.topLeft(), QSizeF(body.width(), whoseHeight)),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWrapAnywhere,
                   doubts.isEmpty() ? whose
                                    : whose + QStringLiteral("\n▲ ") +
                                          QString(doubts).replace(u'\n', QStringLiteral("\n▲ ")));
  const QStringList rows = ExtremumRows(list);
  // The longest list, 49 rows, fits onto a page of any shape.
  const double height = std::min(
      kRowHeight, (body.height() - whoseHeight) / static_cast<double>(ExtremumList::kLimit + 1));
  SetFont(painter, static_cast<int>(std::max(1.0, height * 0.7)), false);
  QRectF row(body.topLeft() + QPointF(0.0, whoseHeight), QSizeF(body.width(), height));
  DrawRow(painter, row, WaveListTitles(), widths);
  for (const QString& text : rows) {
    row.translate(0.0, height);
    DrawRow(painter, row, text.split(u'\t'), widths);
  }
  painter.restore();
}

}  // namespace vexa

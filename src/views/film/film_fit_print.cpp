// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_print.h"

#include <QPicture>
#include <memory>

#include "base/number_text.h"
#include "base/translation.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"

namespace vexa {
namespace {

constexpr double kPixel = 2.5;  // of a plot, on paper
constexpr double kPlotHeight = 900.0;
constexpr double kFourierHeight = 600.0;

QString ThicknessText(const ThicknessRange& range) {
  const auto text = [](double nm) { return FormatNumber(nm, u"####0.0##").trimmed(); };
  return range.IsFixed() ? text(range.fromNm)
                         : text(range.fromNm) + Text::tr("～") + text(range.toNm);
}

PageTable TableOf(const QList<QStringList>& rows, const QString& caption) {
  constexpr double kNarrow = 220.0;
  constexpr double kWide = 560.0;
  PageTable table{.caption = caption, .columns = {}, .rows = {}};
  for (const QString& heading : rows.first()) {
    const bool wide = table.columns.size() == 1 || table.columns.size() == 2;
    table.columns.push_back({heading, wide ? kWide : kNarrow, Qt::AlignLeft, true});
  }
  table.rows.reserve(static_cast<std::size_t>(rows.size()));
  for (const QStringList& cells : rows.mid(1)) {
    std::vector<PageTable::Cell>& row = table.rows.emplace_back();
    row.reserve(static_cast<std::size_t>(cells.size()));
    for (const QString& cell : cells) {
      row.push_back({cell});
    }
  }
  return table;
}

void AddPlot(PageFlow& flow, QCustomPlot& plot, double height) {
  const QPicture picture = PlotDrawing(plot, (QSizeF(flow.Width(), height) / kPixel).toSize());
  flow.Add(height, [picture](QPainter& painter, const QRectF& place) {
    PlayDrawing(painter, place.topLeft(), kPixel, picture);
  });
}

}  // namespace

QList<QStringList> StackRows(const FilmStackSetting& setting) {
  QList<QStringList> rows{{Text::tr("層"), Text::tr("材料"), Text::tr("膜厚 [nm]")}};
  for (const FilmLayerSetting& layer : setting.layers) {
    rows << QStringList{QString::number(rows.size()), layer.material, ThicknessText(layer.range)};
  }
  rows << QStringList{Text::tr("基板"), setting.substrate, QString()};
  return rows;
}

QString ReportText(const FilmFitReport& report) {
  QString text;
  for (const QStringList& cells : report.stack + report.fits) {
    text += cells.join(u'\t') + u'\n';
  }
  return text + report.shown + u'\n' + report.words + u'\n';
}

PageMaker ReportPages(const QString& title, const FilmFitReport& report, QCustomPlot& fit,
                      QCustomPlot& fourier) {
  return [title, report, &fit, &fourier](const QSizeF& page) {
    const auto flow = std::make_shared<PageFlow>(QRectF(QPointF(), page));
    flow->Add(TableOf(report.stack, title));
    flow->Add(TableOf(report.fits, {}));
    PageTable words{
        .caption = report.shown, .columns = {{{}, page.width(), Qt::AlignLeft, true}}, .rows = {}};
    for (const QString& line : report.words.split(u'\n', Qt::SkipEmptyParts)) {
      words.rows.push_back({{line}});
    }
    flow->Add(words);
    AddPlot(*flow, fit, kPlotHeight);
    AddPlot(*flow, fourier, kFourierHeight);
    return PrintedPages{flow->PageCount(), [flow](QPainter& painter, int number) {
                          flow->PaintPage(painter, number);
                        }};
  };
}

}  // namespace vexa

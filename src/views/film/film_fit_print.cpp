// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_print.h"

#include <QPicture>
#include <memory>

#include "base/translation.h"
#include "views/optics/fit_text.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"

namespace vexa {
namespace {

constexpr double kPixel = 2.5;  // of a plot, on paper
constexpr double kPlotHeight = 760.0;
constexpr double kFourierHeight = 460.0;

PageTable TableOf(const QList<QStringList>& rows, const QString& caption,
                  std::initializer_list<double> widths) {
  PageTable table{.caption = caption, .columns = {}, .rows = {}};
  table.columns.reserve(widths.size());
  for (const double width : widths) {
    const auto place = static_cast<qsizetype>(table.columns.size());
    table.columns.push_back({rows.first()[place], width, Qt::AlignLeft, true});
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
    rows << QStringList{QString::number(rows.size()), layer.material,
                        ThicknessRangeText(layer.range)};
  }
  rows << QStringList{Text::tr("基板"), setting.substrate, QString()};
  return rows;
}

QString ReportText(const FilmFitReport& report) {
  QString text;
  for (const QStringList& cells : report.stack + report.fits) {
    text += cells.join(u'\t') + u'\n';
  }
  text += report.shown + u'\n' + report.words + u'\n';
  if (report.settings) {
    text += report.settings->caption + u'\n';
    for (const std::vector<PageTable::Cell>& row : report.settings->rows) {
      text += row.front().text + u'\t' + row.back().text + u'\n';
    }
  }
  return text;
}

PageMaker ReportPages(const QString& title, const FilmFitReport& report, QCustomPlot& fit,
                      QCustomPlot& fourier) {
  return [title, report, &fit, &fourier](const QSizeF& page) {
    const auto flow = std::make_shared<PageFlow>(QRectF(QPointF(), page));
    flow->Add(TableOf(report.stack, title, {220.0, 1100.0, 560.0}));
    flow->Add(TableOf(report.fits, {}, {160.0, 420.0, 440.0, 340.0, 220.0, 330.0}));
    PageTable words{
        .caption = report.shown, .columns = {{{}, page.width(), Qt::AlignLeft, true}}, .rows = {}};
    for (const QString& line : report.words.split(u'\n', Qt::SkipEmptyParts)) {
      words.rows.push_back({{line}});
    }
    flow->Add(words);
    if (report.settings) {
      flow->Add(*report.settings);
    }
    AddPlot(*flow, fit, kPlotHeight);
    AddPlot(*flow, fourier, kFourierHeight);
    return PrintedPages{flow->PageCount(), [flow](QPainter& painter, int number) {
                          flow->PaintPage(painter, number);
                        }};
  };
}

}  // namespace vexa

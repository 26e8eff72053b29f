// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/result_table.h"

#include <QHeaderView>
#include <QPainter>
#include <cmath>
#include <memory>
#include <utility>

#include "base/number_text.h"
#include "base/text_file.h"
#include "views/common/file_questions.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"

namespace vexa {
namespace {

constexpr double kTextWidth = 420.0;
constexpr double kNumberWidth = 200.0;

QString Quoted(QString cell) {
  if (cell.contains(u',') || cell.contains(u'"')) {
    cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
  }
  return cell.simplified();
}

}  // namespace

QTableWidget* MakeResultView(const char* name) {
  auto* view = new QTableWidget;
  view->setObjectName(QLatin1String(name));
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setAlternatingRowColors(true);
  view->verticalHeader()->hide();
  view->horizontalHeader()->setHighlightSections(false);
  view->horizontalHeader()->setStretchLastSection(true);
  view->setTextElideMode(Qt::ElideMiddle);
  return view;
}

void ShowResults(QTableWidget& view, const ResultTable& table) {
  view.setColumnCount(static_cast<int>(table.headings.size()));
  view.setHorizontalHeaderLabels(table.headings);
  view.setRowCount(static_cast<int>(table.rows.size()));
  for (int row = 0; row < view.rowCount(); ++row) {
    const QStringList& cells = table.rows[row];
    for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
      auto* item = new QTableWidgetItem(cells[column]);
      item->setToolTip(cells[column]);
      const auto side = column < table.textColumns ? Qt::AlignLeft : Qt::AlignRight;
      item->setTextAlignment(side | Qt::AlignVCenter);
      view.setItem(row, column, item);
    }
  }
  view.resizeColumnsToContents();
}

PageTable ToPage(const ResultTable& table) {
  PageTable page{.caption = table.caption, .columns = {}, .rows = {}};
  for (const QString& heading : table.headings) {
    const bool text = static_cast<int>(page.columns.size()) < table.textColumns;
    page.columns.push_back(
        {heading, text ? kTextWidth : kNumberWidth, text ? Qt::AlignLeft : Qt::AlignRight, text});
  }
  for (const QStringList& cells : table.rows) {
    std::vector<PageTable::Cell>& row = page.rows.emplace_back();
    row.reserve(static_cast<std::size_t>(cells.size()));
    for (const QString& cell : cells) {
      row.push_back({cell});
    }
  }
  return page;
}

QCoro::Task<bool> PrintResults(CurrentPrinter& printer, const QString& title,
                               std::vector<std::pair<QPicture, QSize>> plots,
                               QList<ResultTable> tables) {
  const auto make = [title, plots = std::move(plots),
                     tables = std::move(tables)](const QSizeF& page) {
    const auto flow = std::make_shared<PageFlow>(QRectF(QPointF(), page));
    constexpr double kTitleHeight = 60.0;
    flow->Add(kTitleHeight, [title](QPainter& painter, const QRectF& place) {
      constexpr int kTitleSize = 40;
      SetPageFont(painter, kTitleSize, true);
      painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, title);
    });
    for (const auto& [picture, size] : plots) {
      const double scale = flow->Width() / size.width();
      flow->Add(scale * size.height(),
                [picture = picture, scale](QPainter& painter, const QRectF& place) {
                  PlayDrawing(painter, place.topLeft(), scale, picture);
                });
    }
    for (const ResultTable& table : tables) {
      flow->Add(ToPage(table));
    }
    return PrintedPages{flow->PageCount(), [flow](QPainter& painter, int number) {
                          flow->PaintPage(painter, number);
                        }};
  };
  return printer.Print(title, make);
}

QCoro::Task<> SaveCsv(QString title, QString proposed, QList<QStringList> rows,
                      MessageService& messages, FileDialogs& dialogs) {
  const QString ending = QStringLiteral(".csv");
  const std::optional<SaveChoice> choice = co_await dialogs.AskSave(
      title, QStringLiteral("CSV(*.csv)|*.csv"), WithExtension(proposed, ending));
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, ending);
  FileText text;
  for (QStringList& cells : rows) {
    for (QString& cell : cells) {
      cell = Quoted(cell);
    }
    text.Line(cells.join(u','));
  }
  const bool may = co_await MayReplace(path, messages);
  if (may) {
    (void)TellWritten(text.WriteTo(path), path, messages);
  }
}

QString ResultText(double value) {
  return std::isfinite(value) ? QString::number(value, 'g', 6).toUpper() : QStringLiteral("-");
}

QString FileNumber(double value) {
  return std::isfinite(value) ? SignedText(value).trimmed() : QString();
}

}  // namespace vexa

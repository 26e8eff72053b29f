// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/wave_list_dlg.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "views/common/dialog_buttons.h"
#include "views/optics/optics_print.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

constexpr int kColumnWidth = 80;  // the last column takes what is left

}  // namespace

WaveListDlg::WaveListDlg(const VEXATYPE& state, CurrentPrinter& printer, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("WaveListDlg"));
  setWindowTitle(QStringLiteral("波長リスト"));
  auto* list = new QTreeWidget;
  list->setObjectName(QStringLiteral("WaveList"));
  list->setHeaderLabels(WaveListTitles());
  list->setRootIsDecorated(false);
  list->setAlternatingRowColors(true);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setFocusPolicy(Qt::NoFocus);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (int column = 0; column < list->columnCount(); ++column) {
    list->setColumnWidth(column, kColumnWidth);
    list->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
  for (const QString& row : ExtremumRows(state.extrema)) {
    auto* item = new QTreeWidgetItem(list, row.split(u'\t'));
    for (int column = 0; column < list->columnCount(); ++column) {
      item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
  }

  QPushButton* print = DialogButton(QStringLiteral("印刷"));
  QPushButton* close = DialogButton(QStringLiteral("閉じる"));
  print->setObjectName(QStringLiteral("Print"));
  close->setObjectName(QStringLiteral("Close"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(print, &QPushButton::clicked, this, [this, &state, &printer] {
    printer.Print(windowTitle(), SinglePage([&state](QPainter& painter, const QRectF& page) {
                    PaintWaveListPage(painter, page, state.extrema);
                  }));
  });
  auto* row = new QHBoxLayout;
  row->addWidget(print);
  row->addStretch();
  row->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(list);
  layout->addLayout(row);
  resize(400, 420);
}

}  // namespace vexa

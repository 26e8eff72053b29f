// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/wave_list_dlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/date_text.h"
#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/doubt_text.h"
#include "views/common/theme.h"
#include "views/optics/optics_print.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

constexpr int kColumnWidth = 80;  // the last column takes what is left

}  // namespace

WaveListDlg::WaveListDlg(const VEXATYPE& state, int selectedSlot, CurrentPrinter& printer,
                         QWidget* parent)
    : QDialog(parent),
      state_(state),
      slotText_(new QLabel),
      doubtMark_(new QLabel),
      doubts_(new QLabel),
      list_(new QTreeWidget) {
  setObjectName(QStringLiteral("WaveListDlg"));
  setWindowTitle(Text::tr("波長リスト"));
  slotText_->setObjectName(QStringLiteral("WaveListSlot"));
  slotText_->setTextFormat(Qt::PlainText);
  slotText_->setWordWrap(true);
  list_->setObjectName(QStringLiteral("WaveList"));
  list_->setHeaderLabels(WaveListTitles());
  list_->setRootIsDecorated(false);
  list_->setAlternatingRowColors(true);
  list_->setSelectionMode(QAbstractItemView::NoSelection);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (int column = 0; column < list_->columnCount(); ++column) {
    list_->setColumnWidth(column, kColumnWidth);
    list_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
  QPushButton* print = DialogButton("Print", Text::tr("印刷"));
  QPushButton* close = DialogButton("Close", Text::tr("閉じる"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(print, &QPushButton::clicked, this, [this, &printer] {
    printer.Print(windowTitle(), SinglePage([this](QPainter& painter, const QRectF& page) {
                    PaintWaveListPage(painter, page, slotText_->text(), doubts_->text(), extrema_);
                  }));
  });
  auto* row = new QHBoxLayout;
  row->addWidget(print);
  row->addStretch();
  row->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(slotText_);
  auto* doubtful = new QHBoxLayout;
  doubtMark_->setPixmap(DoubtMark());
  doubts_->setObjectName(QStringLiteral("WaveListDoubts"));
  doubts_->setWordWrap(true);
  doubtful->addWidget(doubtMark_, 0, Qt::AlignTop);
  doubtful->addWidget(doubts_, 1);
  layout->addLayout(doubtful);
  layout->addWidget(list_);
  layout->addLayout(row);
  resize(400, 420);
  Show(selectedSlot);
}

void WaveListDlg::Show(int selectedSlot) {
  const MeasurementSlot* slot = state_.Slot(selectedSlot);
  const bool valid = slot != nullptr && slot->valid;
  const bool dated = valid && slot->info.measuredAt.isValid();
  const QString date = dated ? DateTimeText(slot->info.measuredAt) : QStringLiteral("-");
  slotText_->setText(valid ? QStringLiteral("Mes%1  %2  %3")
                                 .arg(selectedSlot)
                                 .arg(slot->info.sampleNumber.simplified(), date)
                           : QStringLiteral("Mes%1  -").arg(selectedSlot));
  doubts_->setText(valid ? DoubtTexts(slot->doubts) : QString());
  doubtMark_->setVisible(!doubts_->text().isEmpty());
  doubts_->setVisible(!doubts_->text().isEmpty());
  extrema_ = valid ? slot->thickness.extrema : ExtremumList();
  list_->clear();
  for (const QString& row : ExtremumRows(extrema_)) {
    auto* item = new QTreeWidgetItem(list_, row.split(u'\t'));
    for (int column = 0; column < list_->columnCount(); ++column) {
      item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
}

}  // namespace vexa

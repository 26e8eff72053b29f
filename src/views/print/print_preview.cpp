// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/print_preview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/window_size.h"

namespace vexa {

PrintPreview::PrintPreview(const PrintSettings& settings, const PageMaker& pages, QWidget* parent)
    : QDialog(parent),
      back_(DialogButton("Back", Text::tr("前頁"))),
      next_(DialogButton("Next", Text::tr("次頁"))),
      place_(new QLabel) {
  setObjectName(QStringLiteral("PrintPreview"));
  setWindowTitle(Text::tr("印刷ﾌﾟﾚﾋﾞｭｰ"));
  // The paper alone counts here, so that a printer which is away can be previewed too.
  auto* paper = new QPrinter(QPrinter::HighResolution);
  paper->setOutputFormat(QPrinter::PdfFormat);
  paper->setPageLayout(PageLayoutOf(settings));
  preview_ = new QPrintPreviewWidget(paper);
  connect(preview_, &QObject::destroyed, this, [paper] { delete paper; });
  connect(preview_, &QPrintPreviewWidget::paintRequested, this,
          [pages](QPrinter* printer) { (void)PaintPages(*printer, pages); });
  connect(preview_, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::ShowPlace);
  const auto turn = [this](int by) {
    preview_->setCurrentPage(preview_->currentPage() + by);
    ShowPlace();
  };
  connect(back_, &QPushButton::clicked, this, [turn] { turn(-1); });
  connect(next_, &QPushButton::clicked, this, [turn] { turn(1); });

  QPushButton* whole = DialogButton("WholePage", Text::tr("全体"));
  QPushButton* width = DialogButton("PageWidth", Text::tr("幅に合わせる"));
  QPushButton* close = DialogButton("Close", Text::tr("閉じる"));
  connect(whole, &QPushButton::clicked, preview_, &QPrintPreviewWidget::fitInView);
  connect(width, &QPushButton::clicked, preview_, &QPrintPreviewWidget::fitToWidth);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  close->setDefault(true);
  place_->setObjectName(QStringLiteral("Place"));
  place_->setAlignment(Qt::AlignCenter);
  place_->setMinimumWidth(70);
  auto* row = new QHBoxLayout;
  row->addWidget(back_);
  row->addWidget(place_);
  row->addWidget(next_);
  row->addSpacing(18);
  row->addWidget(whole);
  row->addWidget(width);
  row->addStretch();
  row->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(preview_, 1);
  layout->addLayout(row);
  ResizeWithinScreen(*this, {780, 860});
  preview_->fitInView();
}

void PrintPreview::ShowPlace() {
  const int page = preview_->currentPage();
  const int count = preview_->pageCount();
  place_->setText(QStringLiteral("%1 / %2").arg(page).arg(count));
  back_->setEnabled(page > 1);
  next_->setEnabled(page < count);
}

}  // namespace vexa

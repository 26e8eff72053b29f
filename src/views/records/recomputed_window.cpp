// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/recomputed_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>
#include "base/number_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"
#include "records/result_json.h"
#include "views/common/colour_kind.h"
#include "views/common/dialog_buttons.h"
#include "views/common/theme.h"
#include "views/records/record_details.h"

namespace vexa {
namespace {

// What is compared of the CIE colours.
constexpr std::array kCieColumns{&CieColour::L, &CieColour::a, &CieColour::b, &CieColour::Rv,
                                 &CieColour::spread};

// What is compared, each in a column of its own.
QStringList Values(const SampleRecord& sample, bool cie) {
  const auto number = [](double value, QStringView pattern) {
    return FormatNumber(value, pattern).trimmed();
  };
  QStringList values{VerdictText(sample),
                     number(sample.colour.L, u"##0.00"),
                     number(sample.colour.a, u"##0.00"),
                     number(sample.colour.b, u"##0.00"),
                     number(sample.colour.Rm, u"##0.0##"),
                     number(sample.colour.Y, u"##0.0##"),
                     ThicknessText(sample)};
  if (cie) {
    const std::optional<CieColour> colour = CieOf(sample.cie);
    for (double CieColour::*const value : kCieColumns) {
      values << CieValueText(colour, value);
    }
  }
  return values;
}

QStringList Headers(bool cie) {
  const auto named = [cie](ColourKind kind, const QString& title) {
    return cie ? ColourKindText(kind) + u'\n' + title : title;
  };
  const ColourKind own = ColourKind::kInstrument;
  QStringList headers{Text::tr("試料No"),
                      {},
                      Text::tr("判定"),
                      named(own, QStringLiteral("L*")),
                      named(own, QStringLiteral("a*")),
                      named(own, QStringLiteral("b*")),
                      Text::tr("平均[%]"),
                      named(own, Text::tr("視感[%]")),
                      Text::tr("膜厚", "column")};
  if (cie) {
    for (double CieColour::*const value : kCieColumns) {
      headers << named(ColourKind::kCie, CieSymbol(value));
    }
  }
  return headers;
}

}  // namespace

RecomputedWindow::RecomputedWindow(const QList<WholeRecord>& records, const Settings& settings,
                                   bool cie, QWidget* parent)
    : QDialog(parent), table_(new QTableWidget) {
  setObjectName(QStringLiteral("RecomputedWindow"));
  setWindowTitle(Text::tr("いまの設定での再計算"));
  table_->setObjectName(QStringLiteral("RecomputedTable"));
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->verticalHeader()->hide();
  const QStringList headers = Headers(cie);
  table_->setColumnCount(static_cast<int>(headers.size()));
  table_->setHorizontalHeaderLabels(headers);
  table_->horizontalHeader()->setHighlightSections(false);
  QString telling = Text::tr("記録された値は変わりません。記録と異なる値は太字です。");
  if (cie) {
    telling += u'\n' + Text::tr("記録") + QStringLiteral(": ") +
               CieCaption(CieConditionsOf(records)) + u'\n' + Text::tr("再計算") +
               QStringLiteral(": ") + CieCaption(CieConditions(settings.colour));
  }
  QList<SampleRecord> computed;
  computed.reserve(records.size());
  bool doubtful = false;
  for (const WholeRecord& record : records) {
    computed << EvaluateAnew(record, settings, false);
    doubtful =
        doubtful || !record.sample.doubts.isEmpty() || !computed.constLast().doubts.isEmpty();
  }
  if (doubtful) {
    telling += u'\n' + Text::tr("▲ 疑いあり");
  }
  auto* told = new QLabel(telling);
  told->setWordWrap(true);
  QPushButton* copy = DialogButton("CopyRecomputed", Text::tr("ｺﾋﾟｰ(&C)"));
  QPushButton* closing = DialogButton("CloseRecomputed", Text::tr("閉じる"));
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(copy);
  bottom->addStretch();
  bottom->addWidget(closing);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(told);
  layout->addWidget(table_, 1);
  layout->addLayout(bottom);
  for (qsizetype i = 0; i < records.size(); ++i) {
    AddRow(records[i], computed[i], cie);
  }
  table_->resizeColumnsToContents();
  table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  resize(cie ? 980 : 820, 420);
  connect(copy, &QPushButton::clicked, this, &RecomputedWindow::CopyTable);
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
          &RecomputedWindow::CopyTable);
  connect(closing, &QPushButton::clicked, this, &QDialog::accept);
}

void RecomputedWindow::AddRow(const WholeRecord& record, const SampleRecord& anew, bool cie) {
  const QStringList stored = Values(record.sample, cie);
  const QStringList computed = Values(anew, cie);
  const int row = table_->rowCount();
  table_->setRowCount(row + 2);
  table_->setItem(row, 0, new QTableWidgetItem(record.sample.sampleNumber.simplified()));
  table_->setItem(row, 1, new QTableWidgetItem(Text::tr("記録")));
  table_->setItem(row + 1, 1, new QTableWidgetItem(Text::tr("再計算")));
  for (int i = 0; i < computed.size(); ++i) {
    auto* old = new QTableWidgetItem(stored[i]);
    auto* now = new QTableWidgetItem(computed[i]);
    for (QTableWidgetItem* item : {old, now}) {
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (stored[i] != computed[i]) {
      QFont bold = table_->font();
      bold.setBold(true);
      now->setFont(bold);
    }
    table_->setItem(row, i + 2, old);
    table_->setItem(row + 1, i + 2, now);
  }
  for (int column = 0; column < table_->columnCount(); ++column) {
    if (QTableWidgetItem* item = table_->item(row + 1, column)) {
      item->setBackground(theme::kWindow);
    }
  }
}

void RecomputedWindow::CopyTable() const {
  QString text;
  for (int row = -1; row < table_->rowCount(); ++row) {
    QStringList cells;
    cells.reserve(table_->columnCount());
    for (int column = 0; column < table_->columnCount(); ++column) {
      const QTableWidgetItem* item =
          row < 0 ? table_->horizontalHeaderItem(column) : table_->item(row, column);
      cells << (item == nullptr ? QString() : item->text().replace(u'\n', u' '));
    }
    text += cells.join(u'\t') + u'\n';
  }
  QApplication::clipboard()->setText(text);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_results.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"
#include "views/optics/fit_text.h"

namespace vexa {
namespace {

constexpr int kSampleColumn = 1;  // of any length: it takes what is left
constexpr int kThicknessColumn = 2;
constexpr int kRowHeight = 24;
constexpr int kTableWidth = 416;  // all columns, and a short sample number

QString Number(double value, QStringView pattern) {
  return FormatNumber(value, pattern).trimmed();
}

QStringList Headings() {
  return {Text::tr("ｽﾛｯﾄ"), Text::tr("試料No"), Text::tr("膜厚 [nm]"), Text::tr("結果"),
          Text::tr("残差 [%]")};
}

bool IsOfAnother(const FilmFit& fit, const FilmStackSetting* entered) {
  return entered == nullptr || fit.setting != *entered;
}

QStringList Cells(int number, const MeasurementSlot& slot, const FilmStackSetting* entered) {
  QStringList cells{QStringLiteral("Mes%1").arg(number), slot.info.sampleNumber.simplified()};
  if (slot.fit) {
    // A layer a line: the table is no wider for many.
    const QString word = FitOutcomeWord(slot.fit->outcome);
    cells << FitThicknessText(*slot.fit, QStringLiteral("\n"))
          << (IsOfAnother(*slot.fit, entered) ? Text::tr("%1 (別の設定)").arg(word) : word)
          << Number(slot.fit->rms, u"##0.000");
  } else {
    cells << QStringLiteral("-") << QStringLiteral("-") << QStringLiteral("-");
  }
  return cells;
}

QString LayerWords(const FittedLayer& layer, std::size_t place) {
  const QString name = Text::tr("層%1").arg(place + 1);
  if (layer.uncertaintyNm == 0.0) {
    return Text::tr("%1: %2 nm (既知)").arg(name, Number(layer.thicknessNm, u"0.0"));
  }
  return Text::tr("%1: %2 ± %3 nm (ノイズ %4、波長 %5、屈折率 %6)")
      .arg(name, Number(layer.thicknessNm, u"0.0"), Number(layer.uncertaintyNm, u"0.00"),
           Number(layer.statisticalNm, u"0.00"), Number(layer.wavelengthNm, u"0.00"),
           Number(layer.indexNm, u"0.00"));
}

QString WordsOf(const FilmFit& fit) {
  QStringList lines;
  if (fit.outcome != FitOutcome::kNone) {
    for (std::size_t i = 0; i < fit.layers.size(); ++i) {
      lines << LayerWords(fit.layers[i], i);
    }
    lines << Text::tr("倍率 %1   背景光 %2 %   膜厚むら %3 %   屈折率の係数 %4")
                 .arg(Number(fit.scale, u"0.0000"), Number(fit.offset, u"0.000"),
                      Number(100.0 * fit.spread, u"0.00"), Number(fit.index, u"0.0000"));
  }
  lines << Text::tr("残差 %1 %   ノイズ %2 %")
               .arg(Number(fit.rms, u"0.000"), Number(fit.noise, u"0.000"));
  return (lines + FitNotes(fit) + FitSettingTexts(fit.setting)).join(u'\n');
}

}  // namespace

FilmFitResults::FilmFitResults(QWidget* parent)
    : QWidget(parent),
      table_(new QTableWidget),
      mark_(new QLabel),
      outcome_(new QLabel),
      words_(new QPlainTextEdit) {
  table_->setObjectName(QStringLiteral("FitTable"));
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setAlternatingRowColors(true);
  table_->setIconSize(QSize(22, 12));
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(kRowHeight);
  table_->setMinimumWidth(kTableWidth);
  table_->setColumnCount(static_cast<int>(Headings().size()));
  table_->setHorizontalHeaderLabels(Headings());
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setSectionResizeMode(kSampleColumn, QHeaderView::Stretch);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->horizontalHeader()->setHighlightSections(false);
  outcome_->setObjectName(QStringLiteral("FitOutcome"));
  outcome_->setWordWrap(true);
  words_->setObjectName(QStringLiteral("FitWords"));
  words_->setReadOnly(true);
  words_->setFrameShape(QFrame::NoFrame);
  auto* told = new QHBoxLayout;
  told->addWidget(mark_, 0, Qt::AlignTop);
  told->addWidget(outcome_, 1);
  constexpr int kFewestLines = 4;
  constexpr int kMostLines = 7;
  words_->setMinimumHeight(kFewestLines * fontMetrics().lineSpacing() + 10);
  words_->setMaximumHeight(kMostLines * fontMetrics().lineSpacing() + 10);
  // Below the table: their lines are long, and stand whole even where there is little width.
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(table_, 2);
  layout->addLayout(told);
  layout->addWidget(words_, 3);
  connect(table_, &QTableWidget::currentCellChanged, this, [this](int row) {
    if (!filling_ && row >= 0) {
      emit SlotChosen(table_->item(row, 0)->data(Qt::UserRole).toInt());
    }
  });
}

void FilmFitResults::Show(const VEXATYPE& state, int slot,
                          const std::map<int, FilmFitFault>& refused,
                          const FilmStackSetting* entered) {
  filling_ = true;
  measuredAt_.clear();
  table_->clearSelection();
  table_->setRowCount(0);
  for (int number = 1; number <= kSlotCount; ++number) {
    if (!state.Slot(number)->valid) {
      continue;
    }
    const int row = table_->rowCount();
    table_->insertRow(row);
    int column = 0;
    for (const QString& text : Cells(number, *state.Slot(number), entered)) {
      auto* item = new QTableWidgetItem(text);
      item->setToolTip(text);
      item->setTextAlignment((column > 1 && column != 3 ? Qt::AlignRight : Qt::AlignLeft) |
                             Qt::AlignVCenter);
      table_->setItem(row, column++, item);
    }
    const auto lines = static_cast<int>(table_->item(row, kThicknessColumn)->text().count(u'\n'));
    table_->setRowHeight(row, kRowHeight + lines * table_->fontMetrics().lineSpacing());
    const QDateTime& at = state.Slot(number)->info.measuredAt;
    measuredAt_ << (at.isValid() ? DateTimeText(at) : QStringLiteral("-"));
    table_->item(row, 0)->setData(Qt::UserRole, number);
    table_->item(row, 0)->setIcon(SlotIcon(number, true));
    if (number == slot) {
      table_->selectRow(row);
    }
  }
  filling_ = false;
  const MeasurementSlot* shown = state.Slot(slot);
  const FilmFit* fit = shown != nullptr && shown->valid && shown->fit ? &*shown->fit : nullptr;
  const auto fault = refused.find(slot);
  const bool outdated = fit != nullptr && IsOfAnother(*fit, entered);
  const bool good = fit != nullptr && fit->outcome == FitOutcome::kOk && !outdated;
  mark_->setPixmap(good ? DoneIcon(true).pixmap(16, 16) : DoubtMark());
  mark_->setVisible(fit != nullptr || fault != refused.end());
  QString told = fit != nullptr           ? FitOutcomeText(fit->outcome)
                 : fault != refused.end() ? FilmFitFaultText(fault->second)
                                          : QString();
  if (outdated) {
    told += u' ' + Text::tr("この結果は、入力されている設定とは別の設定のものです。");
  }
  outcome_->setText(told);
  words_->setPlainText(fit != nullptr ? WordsOf(*fit) : QString());
}

QList<QStringList> FilmFitResults::Rows() const {
  QList<QStringList> rows{Headings() << Text::tr("測定日時")};
  for (int row = 0; row < table_->rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < table_->columnCount(); ++column) {
      cells << table_->item(row, column)->text().replace(u'\n', QStringLiteral(" / "));
    }
    rows << (cells << measuredAt_[row]);
  }
  return rows;
}

}  // namespace vexa

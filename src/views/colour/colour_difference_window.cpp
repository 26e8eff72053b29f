// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_difference_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <cmath>
#include <limits>
#include <optional>

#include "base/number_text.h"
#include "colour/colour_difference.h"
#include "views/common/colour_texts.h"
#include "views/common/slot_style.h"

namespace vexa {
namespace {

constexpr int kFirstValueColumn = 2;

// Nothing where the spectrum has no colour, as a black one.
std::optional<LabColour> ColourOf(const MeasurementSlot& slot, const ColourSettings& settings) {
  ColourResult colour;
  colour.L = colour.a = colour.b = std::numeric_limits<double>::quiet_NaN();
  // L*, a* and b* may be there even when the hue is not.
  (void)CalcColour(slot.reflectance, settings, colour);
  if (!std::isfinite(colour.L) || !std::isfinite(colour.a) || !std::isfinite(colour.b)) {
    return std::nullopt;
  }
  return LabColour{colour.L, colour.a, colour.b};
}

QStringList DifferenceTexts(const std::optional<LabColour>& standard,
                            const std::optional<LabColour>& sample) {
  ColourDifference d;
  QStringList texts;
  if (!standard || !sample || !CompareColours(*standard, *sample, d)) {
    texts.fill(QStringLiteral("-"), 7);
    return texts;
  }
  for (const double value :
       {d.deltaL, d.deltaA, d.deltaB, d.deltaC, d.deltaH, d.deltaE, d.deltaE00}) {
    texts << FormatNumber(value, u"##0.000").trimmed();
  }
  return texts;
}

QString SlotText(int slot) {
  return QStringLiteral("Mes%1").arg(slot);
}

}  // namespace

ColourDifferenceWindow::ColourDifferenceWindow(const VEXATYPE& state, int selectedSlot,
                                               QWidget* parent)
    : QDialog(parent), state_(state), standard_(new QComboBox), table_(new QTableWidget) {
  setObjectName(QStringLiteral("ColourDifferenceWindow"));
  setWindowTitle(QStringLiteral("色差測定"));
  standard_->setObjectName(QStringLiteral("StandardSlot"));
  standard_->setMinimumWidth(180);
  standard_->setIconSize(QSize(22, 12));
  table_->setObjectName(QStringLiteral("DifferenceTable"));
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setIconSize(QSize(22, 12));
  table_->verticalHeader()->hide();
  const QStringList headers{
      QStringLiteral("ｽﾛｯﾄ"), QStringLiteral("試料No"), QStringLiteral("ΔL*"),
      QStringLiteral("Δa*"),  QStringLiteral("Δb*"),    QStringLiteral("ΔC*"),
      QStringLiteral("ΔH*"),  QStringLiteral("ΔE*ab"),  QStringLiteral("ΔE00")};
  table_->setColumnCount(static_cast<int>(headers.size()));
  table_->setHorizontalHeaderLabels(headers);
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setHighlightSections(false);

  auto* copy = new QPushButton(QStringLiteral("ｺﾋﾟｰ(&C)"));
  copy->setObjectName(QStringLiteral("CopyTable"));
  auto* closeButton = new QPushButton(QStringLiteral("閉じる"));
  closeButton->setObjectName(QStringLiteral("CloseDifference"));
  auto* conditions = new QLabel(
      QStringLiteral("光源: %1   視野: %2°")
          .arg(IlluminantText(state.colour.illuminant), ObserverText(state.colour.observer2Deg)));
  auto* top = new QHBoxLayout;
  top->addWidget(new QLabel(QStringLiteral("基準:")));
  top->addWidget(standard_);
  top->addStretch();
  top->addWidget(conditions);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(copy);
  bottom->addStretch();
  bottom->addWidget(closeButton);
  for (QPushButton* button : {copy, closeButton}) {
    button->setMinimumWidth(104);
    button->setAutoDefault(false);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->setSpacing(10);
  layout->addLayout(top);
  layout->addWidget(table_, 1);
  layout->addLayout(bottom);
  resize(760, 400);

  FillStandards(selectedSlot);
  FillTable();
  connect(standard_, &QComboBox::currentIndexChanged, this, &ColourDifferenceWindow::FillTable);
  connect(copy, &QPushButton::clicked, this, &ColourDifferenceWindow::CopyTable);
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
          &ColourDifferenceWindow::CopyTable);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);
}

void ColourDifferenceWindow::FillStandards(int selectedSlot) {
  for (int number = 1; number <= kSlotCount; ++number) {
    if (const MeasurementSlot& slot = *state_.Slot(number); slot.valid) {
      standard_->addItem(SlotIcon(number, true),
                         QStringLiteral("%1  %2").arg(SlotText(number), slot.info.sampleNumber),
                         number);
    }
  }
  const int selected = standard_->findData(selectedSlot);
  if (selected >= 0) {
    standard_->setCurrentIndex(selected);
  }
}

void ColourDifferenceWindow::FillTable() {
  table_->setRowCount(0);
  const int standard = standard_->currentData().toInt();
  for (int i = 0; i < standard_->count(); ++i) {
    if (const int slot = standard_->itemData(i).toInt(); slot != standard) {
      AddRow(slot, standard);
    }
  }
}

void ColourDifferenceWindow::AddRow(int slot, int standard) {
  const int row = table_->rowCount();
  table_->insertRow(row);
  table_->setItem(row, 0, new QTableWidgetItem(SlotIcon(slot, true), SlotText(slot)));
  table_->setItem(row, 1, new QTableWidgetItem(state_.Slot(slot)->info.sampleNumber.simplified()));
  int column = kFirstValueColumn;
  for (const QString& text : DifferenceTexts(ColourOf(*state_.Slot(standard), state_.colour),
                                             ColourOf(*state_.Slot(slot), state_.colour))) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table_->setItem(row, column++, item);
  }
}

void ColourDifferenceWindow::CopyTable() const {
  QString text;
  for (int row = -1; row < table_->rowCount(); ++row) {
    QStringList fields;
    for (int column = 0; column < table_->columnCount(); ++column) {
      fields
          << (row < 0 ? table_->horizontalHeaderItem(column) : table_->item(row, column))->text();
    }
    text += fields.join(u'\t') + u'\n';
  }
  QApplication::clipboard()->setText(text);
}

}  // namespace vexa

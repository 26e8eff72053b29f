// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_difference_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>

#include "base/number_text.h"
#include "base/text_file.h"
#include "base/translation.h"
#include "colour/cie_colour.h"
#include "colour/colour_difference.h"
#include "colour/colour_tables.h"
#include "views/common/colour_texts.h"
#include "views/common/file_questions.h"
#include "views/common/proposed_name.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"
#include "views/paper/current_printer.h"
#include "views/paper/page_flow.h"

namespace vexa {
namespace {

constexpr int kFirstValueColumn = 2;
constexpr int kWidestColumn = 260;
const QString kFileName = QStringLiteral("colour-difference");

// Nothing where the spectrum has no colour, as a black one.
std::optional<LabColour> ColourOf(const MeasurementSlot& slot, const ColourSettings& settings,
                                  ColourKind kind) {
  if (kind == ColourKind::kCie) {
    const std::optional<CieColour> colour = CalcCieColour(slot.reflectance, settings);
    return colour && !std::isnan(colour->x)
               ? std::optional(LabColour{colour->L, colour->a, colour->b})
               : std::nullopt;
  }
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

// The headings, and what stands above the table.
constexpr std::array kHeadings{QT_TRANSLATE_NOOP("Text", "ｽﾛｯﾄ"),
                               QT_TRANSLATE_NOOP("Text", "試料No"),
                               "ΔL*",
                               "Δa*",
                               "Δb*",
                               "ΔC*",
                               "ΔH*",
                               "ΔE*ab",
                               "ΔE00"};
constexpr const char* kStandard = QT_TRANSLATE_NOOP("Text", "基準");
constexpr const char* kIlluminant = QT_TRANSLATE_NOOP("Text", "光源");
constexpr const char* kKind = QT_TRANSLATE_NOOP("Text", "測色値");
constexpr const char* kObserver = QT_TRANSLATE_NOOP("Text", "視野");

QString Shown(const char* word) {
  return Text::tr(word);
}

QString KindText(ColourKind kind, QString (*word)(const char*)) {
  const QString name = word(ColourKindName(kind));
  return kind == ColourKind::kCie ? QStringLiteral("%1 (%2)").arg(name, word(kCieRange)) : name;
}

QString SlotText(int slot) {
  return QStringLiteral("Mes%1").arg(slot);
}

}  // namespace

ColourDifferenceWindow::ColourDifferenceWindow(const VEXATYPE& state, int selectedSlot,
                                               CurrentPrinter& printer, MessageService& messages,
                                               FileDialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      state_(state),
      printer_(printer),
      messages_(messages),
      dialogs_(dialogs),
      standard_(new QComboBox),
      kind_(new QComboBox),
      range_(new QLabel(CieRangeText())),
      table_(new QTableWidget) {
  setObjectName(QStringLiteral("ColourDifferenceWindow"));
  setWindowTitle(Text::tr("色差測定"));
  standard_->setObjectName(QStringLiteral("StandardSlot"));
  standard_->setMinimumWidth(180);
  standard_->setIconSize(QSize(22, 12));
  kind_->setObjectName(QStringLiteral("DifferenceKind"));
  for (const ColourKind kind : {ColourKind::kInstrument, ColourKind::kCie}) {
    kind_->addItem(ColourKindText(kind), static_cast<int>(kind));
  }
  kind_->setToolTip(Text::tr("CIE は他の測色計の値と比較できる測色値です。"));
  range_->setObjectName(QStringLiteral("DifferenceRange"));
  QPalette calm = range_->palette();
  calm.setColor(QPalette::WindowText, theme::kAccent);
  range_->setPalette(calm);
  table_->setObjectName(QStringLiteral("DifferenceTable"));
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setIconSize(QSize(22, 12));
  table_->verticalHeader()->hide();
  QStringList headers;
  for (const char* heading : kHeadings) {
    headers << Text::tr(heading);
  }
  table_->setColumnCount(static_cast<int>(headers.size()));
  table_->setHorizontalHeaderLabels(headers);
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  for (const int fitted : {0, 1}) {
    table_->horizontalHeader()->setSectionResizeMode(fitted, QHeaderView::ResizeToContents);
  }
  table_->horizontalHeader()->setMaximumSectionSize(kWidestColumn);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->horizontalHeader()->setHighlightSections(false);

  auto* copy = new QPushButton(Text::tr("ｺﾋﾟｰ(&C)"));
  copy->setObjectName(QStringLiteral("CopyTable"));
  auto* print = new QPushButton(Text::tr("印刷(&P)"));
  print->setObjectName(QStringLiteral("PrintTable"));
  auto* save = new QPushButton(Text::tr("保存(&S)"));
  save->setObjectName(QStringLiteral("SaveTable"));
  auto* closeButton = new QPushButton(Text::tr("閉じる"));
  closeButton->setObjectName(QStringLiteral("CloseDifference"));
  auto* conditions = new QLabel(
      Text::tr("光源: %1   視野: %2°")
          .arg(IlluminantText(state.colour.illuminant), ObserverText(state.colour.observer2Deg)));
  auto* top = new QHBoxLayout;
  top->addWidget(new QLabel(Text::tr("基準:")));
  top->addWidget(standard_);
  top->addSpacing(12);
  top->addWidget(new QLabel(Text::tr("測色値:")));
  top->addWidget(kind_);
  top->addWidget(range_);
  top->addStretch();
  top->addWidget(conditions);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(copy);
  bottom->addWidget(print);
  bottom->addWidget(save);
  bottom->addStretch();
  bottom->addWidget(closeButton);
  for (QPushButton* button : {copy, print, save, closeButton}) {
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
  connect(kind_, &QComboBox::currentIndexChanged, this, &ColourDifferenceWindow::FillTable);
  connect(copy, &QPushButton::clicked, this, &ColourDifferenceWindow::CopyTable);
  connect(print, &QPushButton::clicked, this, &ColourDifferenceWindow::Print);
  connect(save, &QPushButton::clicked, this, &ColourDifferenceWindow::Export);
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

ColourKind ColourDifferenceWindow::Kind() const {
  return static_cast<ColourKind>(kind_->currentData().toInt());
}

void ColourDifferenceWindow::FillTable() {
  range_->setVisible(Kind() == ColourKind::kCie);
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
  const QString sampleNumber = state_.Slot(slot)->info.sampleNumber.simplified();
  auto* sample = new QTableWidgetItem(sampleNumber);
  sample->setToolTip(sampleNumber);
  table_->setItem(row, 1, sample);
  int column = kFirstValueColumn;
  for (const QString& text :
       DifferenceTexts(ColourOf(*state_.Slot(standard), state_.colour, Kind()),
                       ColourOf(*state_.Slot(slot), state_.colour, Kind()))) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table_->setItem(row, column++, item);
  }
}

QList<QStringList> ColourDifferenceWindow::Content(QString (*word)(const char*)) const {
  QList<QStringList> rows{
      {word(kStandard), standard_->currentText().simplified()},
      {word(kKind), KindText(Kind(), word)},
      {word(kIlluminant), IlluminantText(state_.colour.illuminant)},
      {word(kObserver), ObserverText(state_.colour.observer2Deg) + QStringLiteral("°")}};
  for (int row = -1; row < table_->rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < table_->columnCount(); ++column) {
      cells << (row < 0 ? word(kHeadings[static_cast<std::size_t>(column)])
                        : table_->item(row, column)->text());
    }
    rows << cells;
  }
  return rows;
}

void ColourDifferenceWindow::CopyTable() const {
  QString text;
  for (const QStringList& cells : Content(Shown)) {
    text += cells.join(u'\t') + u'\n';
  }
  QApplication::clipboard()->setText(text);
}

void ColourDifferenceWindow::Print() {
  const QList<QStringList> content = Content(Shown);
  PageTable conditions{.caption = windowTitle(),
                       .columns = {{{}, 300.0, Qt::AlignLeft}, {{}, 1500.0, Qt::AlignLeft, true}},
                       .rows = {}};
  PageTable table;
  for (const QStringList& cells : content) {
    PageTable& part = cells.size() == 2 ? conditions : table;
    if (&part == &table && table.columns.empty()) {
      for (const QString& heading : cells) {
        const bool text = table.columns.size() < kFirstValueColumn;
        table.columns.push_back({heading, table.columns.size() == 1 ? 420.0 : 170.0,
                                 text ? Qt::AlignLeft : Qt::AlignRight, text});
      }
      continue;
    }
    std::vector<PageTable::Cell>& row = part.rows.emplace_back();
    for (const QString& cell : cells) {
      row.push_back({cell});
    }
  }
  const auto pages = [conditions, table](const QSizeF& page) {
    const auto flow = std::make_shared<PageFlow>(QRectF(QPointF(), page));
    flow->Add(conditions);
    flow->Add(table);
    return PrintedPages{flow->PageCount(), [flow](QPainter& painter, int number) {
                          flow->PaintPage(painter, number);
                        }};
  };
  printer_.Print(windowTitle(), pages, 1, kFileName);
}

QCoro::Task<> ColourDifferenceWindow::Export() {
  const std::optional<SaveChoice> choice = co_await dialogs_.AskSave(
      windowTitle(), QStringLiteral("CSV(*.csv)|*.csv"),
      WithExtension(ProposedName(state_, kFileName), QStringLiteral(".csv")));
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".csv"));
  FileText text;
  // A file is the same in every language.
  const auto source = [](const char* word) { return QString::fromUtf8(word); };
  for (QStringList cells : Content(source)) {
    for (QString& cell : cells) {
      if (cell.contains(u',') || cell.contains(u'"')) {
        cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
      }
    }
    text.Line(cells.join(u','));
  }
  const bool may = co_await MayReplace(path, messages_);
  if (may) {
    (void)TellWritten(text.WriteTo(path), path, messages_);
  }
}

}  // namespace vexa

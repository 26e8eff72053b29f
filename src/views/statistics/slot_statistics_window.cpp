// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/slot_statistics_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/slot_style.h"
#include "views/paper/current_printer.h"
#include "views/statistics/slot_choice.h"

namespace vexa {
namespace {

constexpr int kMostRepeats = 100;
constexpr int kUsualRepeats = 10;
const QString kFileName = QStringLiteral("slot-statistics");

}  // namespace

SlotStatisticsWindow::SlotStatisticsWindow(const Parts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      state_(parts.session.State()),
      slots_(new QListWidget),
      inGraph_(new QCheckBox(Text::tr("グラフに平均と幅を示す"))),
      count_(new QSpinBox),
      measure_(DialogButton("MeasureRepeats", {})),
      about_(new QLabel),
      note_(new QLabel),
      table_(MakeResultView("RepeatTable")) {
  setObjectName(QStringLiteral("SlotStatisticsWindow"));
  setWindowTitle(Text::tr("ｽﾛｯﾄの統計"));
  about_->setObjectName(QStringLiteral("RepeatAbout"));
  note_->setObjectName(QStringLiteral("RepeatCieNote"));
  note_->setWordWrap(true);
  QPushButton* print = DialogButton("PrintRepeats", Text::tr("印刷(&P)"));
  QPushButton* save = DialogButton("SaveRepeats", Text::tr("保存(&S)"));
  QPushButton* closeButton = DialogButton("CloseRepeats", Text::tr("閉じる"));
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(print);
  bottom->addWidget(save);
  bottom->addStretch();
  bottom->addWidget(closeButton);
  auto* right = new QVBoxLayout;
  right->addWidget(about_);
  right->addWidget(table_, 1);
  right->addWidget(note_);
  auto* top = new QHBoxLayout;
  top->addWidget(BuildChoice());
  top->addLayout(right, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addLayout(top, 1);
  layout->addLayout(bottom);
  resize(1000, 470);

  connect(slots_, &QListWidget::itemChanged, this, &SlotStatisticsWindow::ShowSlots);
  connect(inGraph_, &QCheckBox::toggled, this,
          [this](bool on) { emit SpreadWanted(on ? TickedSlots() : std::vector<int>()); });
  connect(measure_, &QPushButton::clicked, this, [this] { MeasureRepeats(); });
  connect(print, &QPushButton::clicked, this, &SlotStatisticsWindow::Print);
  connect(save, &QPushButton::clicked, this, &SlotStatisticsWindow::Save);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::close);
  const auto refill = [this] {
    if (!busy_) {
      FillSlots();
    }
  };
  connect(&parts_.session, &Session::SlotChanged, this, refill);
  connect(&parts_.session, &Session::SlotsReplaced, this, refill);
  connect(&parts_.session, &Session::SettingsChanged, this, refill);
  connect(&parts_.session, &Session::SampleStored, this, [this] { measured_ = true; });
  connect(&parts_.desk, &InstrumentDesk::ActivityChanged, this,
          &SlotStatisticsWindow::ShowAvailable);
  FillSlots();
  ShowAvailable();
}

QWidget* SlotStatisticsWindow::BuildChoice() {
  slots_->setObjectName(QStringLiteral("TickedSlots"));
  inGraph_->setObjectName(QStringLiteral("SpreadInGraph"));
  count_->setObjectName(QStringLiteral("RepeatCount"));
  count_->setLocale(QLocale::c());
  count_->setRange(2, kMostRepeats);
  count_->setValue(kUsualRepeats);
  count_->setSuffix(Text::tr(" 回"));
  auto* choice = new QWidget;
  constexpr int kWidth = 220;
  choice->setFixedWidth(kWidth);
  auto* layout = new QVBoxLayout(choice);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(slots_, 1);
  layout->addWidget(inGraph_);
  auto* repeats = new QGroupBox(Text::tr("一つのレンズの繰返し"));
  auto* row = new QVBoxLayout(repeats);
  row->addWidget(count_);
  row->addWidget(measure_);
  layout->addWidget(repeats);
  return choice;
}

void SlotStatisticsWindow::FillSlots() {
  const std::vector<int> ticked = TickedSlots();
  {
    const QSignalBlocker quiet(slots_);
    const bool first = slots_->count() == 0;
    slots_->clear();
    for (int number = 1; number <= kSlotCount; ++number) {
      if (const MeasurementSlot& slot = *state_.Slot(number); slot.valid) {
        auto* item = new QListWidgetItem(
            SlotIcon(number, true),
            QStringLiteral("Mes%1  %2").arg(number).arg(slot.info.sampleNumber.simplified()));
        item->setData(Qt::UserRole, number);
        const bool on = first || std::ranges::find(ticked, number) != ticked.end();
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
        slots_->addItem(item);
      }
    }
  }
  ShowSlots();
}

std::vector<int> SlotStatisticsWindow::TickedSlots() const {
  std::vector<int> numbers;
  numbers.reserve(static_cast<std::size_t>(slots_->count()));
  for (int i = 0; i < slots_->count(); ++i) {
    if (slots_->item(i)->checkState() == Qt::Checked) {
      numbers.push_back(slots_->item(i)->data(Qt::UserRole).toInt());
    }
  }
  return numbers;
}

void SlotStatisticsWindow::ShowSlots() {
  const std::vector<int> numbers = TickedSlots();
  studied_.clear();
  studied_.reserve(numbers.size());
  for (const int number : numbers) {
    studied_.push_back(StudiedSample::Of(state_, number));
  }
  about_->setText(Text::tr("選んだ %1 個のｽﾛｯﾄ").arg(numbers.size()));
  ShowTable();
  if (inGraph_->isChecked()) {
    emit SpreadWanted(numbers);
  }
}

void SlotStatisticsWindow::ShowTable() {
  ShowResults(*table_, RepeatTable(studied_));
  const QString note = CieNote(studied_);
  note_->setText(note);
  note_->setVisible(!note.isEmpty());
}

void SlotStatisticsWindow::ShowAvailable() {
  measure_->setText(busy_ ? Text::tr("中止(&M)") : Text::tr("繰返し測定(&M)"));
  measure_->setEnabled(busy_ || (parts_.desk.IsIdle() && parts_.desk.IsReady()));
  count_->setEnabled(!busy_);
  slots_->setEnabled(!busy_);
}

QCoro::Task<> SlotStatisticsWindow::MeasureRepeats() {
  if (busy_) {
    stop_ = true;
    parts_.desk.Cancel();
    co_return;
  }
  const QPointer<SlotStatisticsWindow> self(this);
  InstrumentDesk& desk = parts_.desk;
  const int slot = FreeSlot(state_);
  const int count = count_->value();
  busy_ = true;
  stop_ = false;
  std::vector<StudiedSample> repeats;
  repeats.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count && !stop_; ++i) {
    about_->setText(Text::tr("%1/%2 回目を測定しています...").arg(i + 1).arg(count));
    measured_ = false;
    if (i == 0) {
      co_await desk.MeasureSample(slot);
    } else {
      co_await desk.MeasureSampleOver(slot);
    }
    if (self == nullptr) {
      co_return;
    }
    if (!measured_) {
      break;
    }
    repeats.push_back(StudiedSample::Of(state_, slot));
  }
  busy_ = false;
  ShowAvailable();
  FillSlots();
  if (!repeats.empty()) {
    studied_ = repeats;
    about_->setText(Text::tr("一つのレンズの %1 回の測定").arg(repeats.size()));
    ShowTable();
  }
}

void SlotStatisticsWindow::Print() {
  ResultTable table = RepeatTable(studied_);
  table.caption = about_->text();
  QList<ResultTable> tables{table};
  if (const QString note = CieNote(studied_); !note.isEmpty()) {
    tables << ResultTable{
        {}, {Text::tr("項目"), Text::tr("値")}, {{QStringLiteral("CIE"), note}}, 2};
  }
  PrintResults(parts_.printer, windowTitle(), {}, tables);
}

void SlotStatisticsWindow::Save() {
  SaveCsv(windowTitle(), kFileName, SpectrumRows(studied_), parts_.messages, parts_.dialogs);
}

void SlotStatisticsWindow::closeEvent(QCloseEvent* event) {
  stop_ = true;
  emit SpreadWanted({});
  QDialog::closeEvent(event);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/measurement_bar.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QVBoxLayout>

#include "app/frame_age.h"
#include "base/date_text.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kWidth = 176;
const QString kBackgroundAtRest = QStringLiteral("Background");
const QString kReferenceAtRest = QStringLiteral("Reference");

QPushButton* Button(const QString& caption, const QString& tip, int height) {
  auto* button = new QPushButton(caption);
  button->setObjectName(caption);
  button->setToolTip(tip);
  button->setMinimumHeight(height);
  return button;
}

QPushButton* TwoStateButton(const QString& caption, const QString& tip, const QKeySequence& key) {
  QPushButton* button = Button(
      caption, QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)), 40);
  button->setCheckable(true);
  button->setShortcut(key);
  button->setIconSize(QSize(16, 16));
  return button;
}

// A new text takes a button's key away.
void SetCaption(QPushButton& button, const QString& text) {
  const QKeySequence key = button.shortcut();
  button.setText(text);
  button.setShortcut(key);
}

QFrame* Line() {
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setForegroundRole(QPalette::Mid);
  return line;
}

QString Tip(int slot) {
  return QStringLiteral("ｻﾝﾌﾟﾙをｽﾛｯﾄ%1に測定 (Ctrl+%2)").arg(slot).arg(slot % 10);
}

}  // namespace

MeasurementBar::MeasurementBar(QWidget* parent)
    : QWidget(parent),
      background_(TwoStateButton(kBackgroundAtRest, QStringLiteral("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ測定"), Qt::Key_F5)),
      backgroundAge_(SmallLabel(QStringLiteral("BackgroundAge"))),
      reference_(TwoStateButton(kReferenceAtRest, QStringLiteral("ﾘﾌｧﾚﾝｽ測定"), Qt::Key_F6)),
      referenceAge_(SmallLabel(QStringLiteral("ReferenceAge"))),
      allClear_(Button(QStringLiteral("ALL CLEAR"), QStringLiteral("全ｽﾛｯﾄをｸﾘｱ"), 30)),
      data_(Button(QStringLiteral("Data"), QStringLiteral("試料情報"), 30)),
      time_(new QLabel),
      lightWarning_(SmallLabel(QStringLiteral("LightWarning"))) {
  setFixedWidth(kWidth);
  // They look pressed while they measure, not while a request is refused.
  connect(background_, &QPushButton::clicked, this, [this] {
    background_->setChecked(false);
    emit BackgroundRequested();
  });
  connect(reference_, &QPushButton::clicked, this, [this] {
    reference_->setChecked(false);
    emit ReferenceRequested();
  });
  connect(allClear_, &QPushButton::clicked, this, &MeasurementBar::ClearRequested);
  connect(data_, &QPushButton::clicked, this, &MeasurementBar::DataRequested);

  lightWarning_->setText(QStringLiteral("光路が閉じています。\n測定すると開きます。"));
  lightWarning_->setStyleSheet(kCalmWarning);
  lightWarning_->hide();
  time_->setObjectName(QStringLiteral("Time"));
  time_->setAlignment(Qt::AlignCenter);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  layout->addWidget(background_);
  layout->addWidget(backgroundAge_);
  layout->addWidget(lightWarning_);
  layout->addWidget(reference_);
  layout->addWidget(referenceAge_);
  layout->addWidget(Line());

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(5);
  grid->setColumnStretch(1, 1);
  auto* options = new QButtonGroup(this);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    const QString name = QStringLiteral("Mes%1").arg(slot);
    auto* option = new QRadioButton(QString::number(slot));
    option->setObjectName(name + QStringLiteral("Option"));
    option->setToolTip(QStringLiteral("ｽﾛｯﾄ%1を表示").arg(slot));
    option->setAccessibleName(option->toolTip());
    option->setIconSize(QSize(22, 12));
    QPushButton* measure = Button(name, Tip(slot), 28);
    measure->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + slot % 10)));
    options->addButton(option, slot);
    grid->addWidget(option, slot, 0);
    grid->addWidget(measure, slot, 1);
    rows_[static_cast<std::size_t>(slot - 1)] = {option, measure};
    connect(measure, &QPushButton::clicked, this, [this, slot] { emit SampleRequested(slot); });
    connect(option, &QRadioButton::clicked, this, [this, slot] { emit SlotSelected(slot); });
  }
  rows_.front().option->setChecked(true);
  layout->addLayout(grid);
  layout->addSpacing(2);
  layout->addWidget(allClear_);
  layout->addWidget(Line());
  layout->addWidget(data_);
  layout->addWidget(time_);
  layout->addStretch();
}

int MeasurementBar::GetOption() const {
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    if (rows_[static_cast<std::size_t>(slot - 1)].option->isChecked()) {
      return slot;
    }
  }
  return 0;
}

void MeasurementBar::SelectSlot(int slot) {
  rows_.at(static_cast<std::size_t>(slot - 1)).option->setChecked(true);
}

void MeasurementBar::Show(const VEXATYPE& state) {
  background_->setIcon(DoneIcon(state.backgroundMeasured));
  reference_->setIcon(DoneIcon(state.referenceMeasured));
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    rows_[static_cast<std::size_t>(slot - 1)].option->setIcon(
        SlotIcon(slot, state.Slot(slot)->valid));
  }
  const MeasurementSlot* selected = state.Slot(GetOption());
  time_->setText(DateTimeText(selected == nullptr ? QDateTime() : selected->info.measuredAt));
}

void MeasurementBar::ShowAges(const VEXATYPE& state, const QDateTime& now) {
  if (state.backgroundMeasured) {
    ShowFrameAge(*backgroundAge_, state.backgroundTaken, state.instrument, now);
  }
  if (state.referenceMeasured) {
    ShowFrameAge(*referenceAge_, state.referenceTaken, state.instrument, now);
  }
}

void MeasurementBar::ShowRunning(MeasurementKind kind, int slot) {
  switch (kind) {
    case MeasurementKind::kBackground:
      SetCaption(*background_, QStringLiteral("*Backgroud*"));
      background_->setChecked(true);
      break;
    case MeasurementKind::kReference:
      SetCaption(*reference_, QStringLiteral("*Reference*"));
      reference_->setChecked(true);
      break;
    case MeasurementKind::kSample:
      rows_.at(static_cast<std::size_t>(slot - 1)).measure->setDown(true);
      break;
  }
}

void MeasurementBar::ShowAtRest() {
  SetCaption(*background_, kBackgroundAtRest);
  background_->setChecked(false);
  SetCaption(*reference_, kReferenceAtRest);
  reference_->setChecked(false);
  for (const SlotRow& row : rows_) {
    row.measure->setDown(false);
  }
}

void MeasurementBar::SetAvailable(bool controller, bool idle) {
  background_->setEnabled(controller && idle);
  reference_->setEnabled(controller && idle);
  for (const SlotRow& row : rows_) {
    row.measure->setEnabled(idle);
  }
  allClear_->setEnabled(idle);
  data_->setEnabled(idle);
}

void MeasurementBar::ShowLightPathClosed(bool closed) {
  lightWarning_->setVisible(closed);
  backgroundAge_->setVisible(!closed);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/measurement_bar.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QVBoxLayout>

#include "app/frame_age.h"
#include "base/date_text.h"
#include "base/translation.h"
#include "views/common/option_frame.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kWidth = 176;
const QString kBackgroundAtRest = QStringLiteral("Background");
const QString kReferenceAtRest = QStringLiteral("Reference");

// As high as the window has room for: `lowest` on a low screen, `highest` from there on.
struct Heights {
  int lowest;
  int highest;
};
constexpr Heights kFrameButton{28, 40};
constexpr Heights kSlotButton{20, 28};
constexpr Heights kCommandButton{22, 30};
constexpr int kSlotSpacing = 4;

QPushButton* Button(const QString& name, const QString& caption, const QString& tip,
                    Heights heights) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setMinimumHeight(heights.lowest);
  button->setMaximumHeight(heights.highest);
  button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  return button;
}

QPushButton* TwoStateButton(const char* name, const QString& caption, const QString& tip,
                            const QKeySequence& key) {
  QPushButton* button = Button(
      QLatin1String(name), caption,
      QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)), kFrameButton);
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
  return Text::tr("ｻﾝﾌﾟﾙをｽﾛｯﾄ%1に測定 (Ctrl+%2)").arg(slot).arg(slot % 10);
}

}  // namespace

MeasurementBar::MeasurementBar(QWidget* parent)
    : QWidget(parent),
      open_(DoneIcon(false)),
      done_(DoneIcon(true)),
      background_(
          TwoStateButton("Background", kBackgroundAtRest, Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ測定"), Qt::Key_F5)),
      backgroundAge_(SmallLabel(QStringLiteral("BackgroundAge"))),
      reference_(TwoStateButton("Reference", kReferenceAtRest, Text::tr("ﾘﾌｧﾚﾝｽ測定"), Qt::Key_F6)),
      referenceAge_(SmallLabel(QStringLiteral("ReferenceAge"))),
      allClear_(Button(QStringLiteral("AllClear"), QStringLiteral("ALL CLEAR"),
                       Text::tr("全ｽﾛｯﾄをｸﾘｱ"), kCommandButton)),
      data_(Button(QStringLiteral("Data"), QStringLiteral("Data"), Text::tr("試料情報"),
                   kCommandButton)),
      time_(new QLabel),
      warning_(SmallLabel(QStringLiteral("Warning"))) {
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

  warning_->setStyleSheet(kCalmWarning);
  warning_->hide();
  time_->setObjectName(QStringLiteral("Time"));
  time_->setAlignment(Qt::AlignCenter);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(background_, kFrameButton.highest);
  layout->addWidget(backgroundAge_);
  layout->addWidget(warning_);
  layout->addWidget(reference_, kFrameButton.highest);
  layout->addWidget(referenceAge_);
  layout->addWidget(Line());

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(kSlotSpacing);
  grid->setColumnStretch(1, 1);
  auto* options = new QButtonGroup(this);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    const QString name = QStringLiteral("Mes%1").arg(slot);
    auto* option = new QRadioButton(QString::number(slot));
    option->setObjectName(name + QStringLiteral("Option"));
    option->setToolTip(Text::tr("ｽﾛｯﾄ%1を表示").arg(slot));
    option->setAccessibleName(option->toolTip());
    option->setIconSize(QSize(22, 12));
    option->setMinimumHeight(kSlotButton.lowest);
    QPushButton* measure = Button(name, name, Tip(slot), kSlotButton);
    measure->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + slot % 10)));
    options->addButton(option, slot);
    grid->addWidget(option, slot, 0);
    grid->addWidget(measure, slot, 1);
    rows_[static_cast<std::size_t>(slot - 1)] = {option, measure, SlotIcon(slot, false),
                                                 SlotIcon(slot, true)};
    connect(measure, &QPushButton::clicked, this, [this, slot] { emit SampleRequested(slot); });
    connect(option, &QRadioButton::clicked, this, [this, slot] { emit SlotSelected(slot); });
  }
  rows_.front().option->setChecked(true);
  TabToChosen(*options);
  layout->addLayout(grid, kSlotCount * (kSlotButton.highest + kSlotSpacing));
  layout->addWidget(allClear_, kCommandButton.highest);
  layout->addWidget(Line());
  layout->addWidget(data_, kCommandButton.highest);
  layout->addWidget(time_);
  layout->addStretch(1);
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
  background_->setIcon(state.backgroundMeasured ? done_ : open_);
  reference_->setIcon(state.referenceMeasured ? done_ : open_);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    const SlotRow& row = rows_[static_cast<std::size_t>(slot - 1)];
    row.option->setIcon(state.Slot(slot)->valid ? row.filled : row.empty);
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

QPushButton* MeasurementBar::ButtonOf(MeasurementKind kind, int slot) const {
  switch (kind) {
    case MeasurementKind::kBackground:
      return background_;
    case MeasurementKind::kReference:
      return reference_;
    case MeasurementKind::kSample:
      break;
  }
  return rows_.at(static_cast<std::size_t>(slot - 1)).measure;
}

void MeasurementBar::ShowRunning(MeasurementKind kind, int slot) {
  measuring_ = ButtonOf(kind, slot);
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
      measuring_->setDown(true);
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
    row.measure->setEnabled(controller && idle);
  }
  allClear_->setEnabled(idle);
  data_->setEnabled(idle);
  if (idle && measuring_ != nullptr) {
    measuring_->setFocus();
    measuring_ = nullptr;
  }
}

void MeasurementBar::ShowWarning(const QString& text) {
  // One goes before the other comes: with both at once the window would grow, and stay so.
  (text.isEmpty() ? warning_ : backgroundAge_)->hide();
  (text.isEmpty() ? backgroundAge_ : warning_)->show();
  warning_->setText(text);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_page.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/theme.h"
#include "views/lot/light_panel.h"
#include "views/lot/lot_side.h"
#include "views/lot/lot_verdict.h"
#include "views/lot/verdict_panel.h"

namespace vexa {
namespace {

constexpr int kAgesMs = 5000;
constexpr int kEntryPixels = 28;
constexpr int kHintPixels = 18;
constexpr int kInstrumentReason = 3;  // of RepeatReasons

// Why a lens is measured again; the first unless another is chosen.
QStringList RepeatReasons() {
  return {Text::tr("置き直し"), Text::tr("汚れを拭いた"), Text::tr("番号の間違い"),
          Text::tr("測定器の異常"), Text::tr("結果の確認")};
}

QLabel* Line(const char* name, int pixels) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  QFont font = label->font();
  font.setPixelSize(pixels);
  label->setFont(font);
  label->setWordWrap(true);
  return label;
}

}  // namespace

LotPage::LotPage(LotRun& run, Session& session, InstrumentDesk& desk, MessageService& messages,
                 QWidget* parent)
    : QWidget(parent),
      run_(run),
      session_(session),
      desk_(desk),
      messages_(messages),
      verdict_(new VerdictPanel),
      side_(new LotSide),
      light_(new LightPanel),
      said_(Line("LotSaid", kHintPixels)),
      hint_(Line("LotHint", kHintPixels)),
      number_(new QLineEdit) {
  constexpr int kLongestNumber = 100;
  number_->setObjectName(QStringLiteral("LotNumber"));
  number_->setMaxLength(kLongestNumber);
  QFont font = number_->font();
  font.setPixelSize(kEntryPixels);
  number_->setFont(font);
  number_->installEventFilter(this);
  said_->setStyleSheet(QStringLiteral("color:%1; font-weight:bold;").arg(theme::kBad.name()));
  light_->setVisible(false);

  auto* left = new QVBoxLayout;
  left->addWidget(verdict_, 1);
  left->addWidget(light_);
  left->addWidget(said_);
  left->addWidget(hint_);
  left->addWidget(number_);
  auto* top = new QHBoxLayout;
  top->addLayout(left, 1);
  top->addWidget(side_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->setSpacing(8);
  layout->addLayout(top, 1);
  layout->addWidget(MakeButtons());
  setFocusProxy(number_);

  connect(&run_, &LotRun::Changed, this, &LotPage::ShowRun);
  connect(&desk_, &InstrumentDesk::ActivityChanged, this, &LotPage::ShowRun);
  connect(&desk_, &InstrumentDesk::LightSeen, light_, &LightPanel::Show);
  connect(&ages_, &QTimer::timeout, this, [this] {
    run_.TakeReleases();
    ShowRun();
  });
  connect(number_, &QLineEdit::textChanged, this, [this] { hint_->setText(Hint()); });
  connect(number_, &QLineEdit::textEdited, this, [this] { offered_ = false; });
  ages_.start(kAgesMs);
  ShowRun();
}

QPushButton* LotPage::CommandButton(const char* name, const QString& caption, int key,
                                    void (LotPage::*act)()) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QPushButton::clicked, this, act);
  connect(new QShortcut(key, this), &QShortcut::activated, button, [button] { button->click(); });
  return button;
}

QWidget* LotPage::MakeButtons() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  layout->addWidget(CommandButton("LotBackground", Text::tr("F2 ﾊﾞｯｸｸﾞﾗﾝﾄﾞ"), Qt::Key_F2,
                                  &LotPage::MeasureBackground));
  layout->addWidget(
      CommandButton("LotReference", Text::tr("F3 ﾘﾌｧﾚﾝｽ"), Qt::Key_F3, &LotPage::MeasureReference));
  layout->addWidget(
      CommandButton("LotRepeat", Text::tr("F4 測り直し"), Qt::Key_F4, &LotPage::RepeatLast));
  lightButton_ = CommandButton("LotLight", Text::tr("F7 光量"), Qt::Key_F7, &LotPage::ToggleLight);
  lightButton_->setCheckable(true);
  layout->addWidget(lightButton_);
  layout->addStretch();
  layout->addWidget(
      CommandButton("LotReport", Text::tr("F8 報告書"), Qt::Key_F8, &LotPage::ReportRequested));
  layout->addWidget(
      CommandButton("LotEnd", Text::tr("F10 ロット終了"), Qt::Key_F10, &LotPage::EndRequested));
  return row;
}

bool LotPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched != number_ || event->type() != QEvent::KeyPress) {
    return QWidget::eventFilter(watched, event);
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // A key that is held down measures once.
      if (!key.isAutoRepeat()) {
        Return();
      }
      return true;
    case Qt::Key_Space:
      return key.isAutoRepeat() || Space();
    case Qt::Key_Escape:
      Escape();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      StepReason(key.key() == Qt::Key_Up ? -1 : 1);
      return true;
    default:
      return QWidget::eventFilter(watched, event);
  }
}

void LotPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  number_->setFocus();
}

void LotPage::EndLight() {
  if (lightButton_->isChecked()) {
    lightButton_->setChecked(false);
    ToggleLight();
  }
}

void LotPage::Return() {
  const QString number = number_->text().simplified();
  if (run_.IsMeasuring()) {
    if (number.isEmpty()) {
      Say(Text::tr("測定中です。終わるまで待ってください。"));
    } else {
      scanned_ << number;
      number_->clear();
    }
    ShowRun();
    return;
  }
  if (offered_ && run_.WhatIsDue() != LotRun::Due::kNothing) {
    PutBack();
    Begin({});
    return;
  }
  if (!number.isEmpty() && run_.WhatIsDue() != LotRun::Due::kNothing) {
    // Whoever scans a lens has it in the hand: the frame is taken by a Return of its own.
    Say(Text::tr("先に、指示された測定をしてください。番号 %1 は残してあります。").arg(number));
    scanned_ << number;
    number_->clear();
    ShowRun();
    return;
  }
  Begin(number);
}

// True when the key is no letter of the number.
bool LotPage::Space() {
  if (!number_->text().isEmpty() && number_->selectedText() != number_->text()) {
    return false;
  }
  Return();
  return true;
}

void LotPage::Escape() {
  if (run_.IsMeasuring()) {
    run_.Cancel();
  } else if (asked_) {
    asked_.reset();
    TakeNextScanned();
  } else {
    number_->clear();
    scanned_.clear();
  }
  ShowRun();
}

// Does what Return stands for: `number` is what was typed.
void LotPage::Begin(const QString& number) {
  said_->clear();
  switch (run_.WhatIsDue()) {
    case LotRun::Due::kBackground:
      MeasureBackground();
      return;
    case LotRun::Due::kReference:
      MeasureReference();
      return;
    case LotRun::Due::kNothing:
      break;
  }
  if (asked_ && number.isEmpty()) {
    const QString repeated = *asked_;
    asked_.reset();
    run_.MeasureLens(repeated, RepeatReasons().at(reason_));
    return;
  }
  asked_.reset();
  number_->clear();
  if (number.isEmpty() && IsToBeMeasuredAgain()) {
    const bool cancelled = run_.LastOutcome() == LotRun::Outcome::kCancelled;
    run_.MeasureLens(run_.CurrentNumber(), RepeatReasons().at(cancelled ? 0 : kInstrumentReason));
    return;
  }
  const QString next = number.isEmpty() ? run_.NextNumber() : number;
  if (run_.Tally().Find(next) != nullptr) {
    AskToRepeat(next);
  } else {
    run_.MeasureLens(next);
  }
}

// The last lens failed, or was cancelled: it keeps its number.
bool LotPage::IsToBeMeasuredAgain() const {
  const bool ended = run_.LastOutcome() == LotRun::Outcome::kFault ||
                     run_.LastOutcome() == LotRun::Outcome::kCancelled;
  return ended && run_.LastKind() == MeasurementKind::kSample;
}

void LotPage::AskToRepeat(const QString& number) {
  PutBack();
  asked_ = number;
  reason_ = 0;
  messages_.Beep();
  ShowRun();
}

void LotPage::StepReason(int by) {
  const int count = static_cast<int>(RepeatReasons().size());
  if (asked_) {
    reason_ = (reason_ + by + count) % count;
    ShowRun();
  }
}

void LotPage::MeasureBackground() {
  run_.MeasureFrame(MeasurementKind::kBackground);
}

void LotPage::MeasureReference() {
  run_.MeasureFrame(MeasurementKind::kReference);
}

void LotPage::RepeatLast() {
  if (run_.IsMeasuring() || run_.CurrentLens() == nullptr) {
    Say(run_.IsMeasuring() ? Text::tr("測定中です。終わるまで待ってください。")
                           : Text::tr("測り直すレンズがありません。"));
    return;
  }
  AskToRepeat(run_.CurrentNumber());
}

void LotPage::ToggleLight() {
  const bool on = lightButton_->isChecked();
  light_->setVisible(on);
  if (on && !desk_.IsReady()) {
    lightButton_->setChecked(false);
    light_->ShowNone(Text::tr("光量を測れません。F7で再開します。"));
  } else if (on) {
    light_->Clear();
    light_->ShowNone(Text::tr("光量を測っています..."));
    Watch();
  } else if (!run_.IsMeasuring()) {
    desk_.StopWatching();
  }
}

// Frames as long as the light is wanted and nothing else is measured. One that fails ends it.
QCoro::Task<> LotPage::Watch() {
  const QPointer<LotPage> alive(this);
  const Status status = co_await desk_.WatchLight();
  if (alive.isNull() || run_.IsMeasuring() || status == Controller::kBusy) {
    co_return;
  }
  if (lightButton_->isChecked()) {
    lightButton_->setChecked(false);
    light_->ShowNone(status == Controller::kCancelled
                         ? Text::tr("光量の測定を止めました。")
                         : Text::tr("光量を測れません。F7で再開します。"));
  }
}

void LotPage::ShowRun() {
  const bool measuring = run_.IsMeasuring();
  const bool ended = measuring_ && !measuring;
  measuring_ = measuring;
  if (ended) {
    if (run_.LastOutcome() == LotRun::Outcome::kFault ||
        (run_.LastOutcome() == LotRun::Outcome::kJudged &&
         run_.CurrentLens()->State() == LensState::kNotGood)) {
      messages_.Beep();
    }
    Say(run_.LastOutcome() == LotRun::Outcome::kFault ? QString() : run_.FaultText());
    TakeNextScanned();
  }
  if (asked_ && !measuring && run_.WhatIsDue() == LotRun::Due::kNothing) {
    const LotLens* lens = run_.Tally().Find(*asked_);
    verdict_->Show(RepeatQuestion(*lens, RepeatReasons().at(reason_)));
  } else {
    verdict_->Show(VerdictContent(run_, session_.State()));
  }
  side_->Show(run_, session_);
  hint_->setText(Hint());
  for (const char* name : {"LotBackground", "LotReference", "LotRepeat"}) {
    findChild<QPushButton*>(QLatin1String(name))->setEnabled(!measuring);
  }
  if (ended && lightButton_->isChecked() && isVisible()) {
    Watch();  // which a measurement has interrupted
  }
}

// A number that came too early is the next lens's, and goes where a new one is typed over it.
void LotPage::TakeNextScanned() {
  if (!scanned_.isEmpty() && number_->text().isEmpty() && !asked_ &&
      run_.WhatIsDue() == LotRun::Due::kNothing) {
    number_->setText(scanned_.takeFirst());
    number_->selectAll();
    offered_ = true;
  }
}

// What stands in the field waits again, before the others.
void LotPage::PutBack() {
  if (const QString number = number_->text().simplified(); !number.isEmpty()) {
    scanned_.prepend(number);
  }
  number_->clear();
  offered_ = false;
}

void LotPage::Say(const QString& text) {
  said_->setText(text);
}

QString LotPage::Hint() const {
  QString waiting;
  if (!scanned_.isEmpty()) {
    waiting =
        QStringLiteral("   ") + Text::tr("次の番号: %1").arg(scanned_.join(QStringLiteral(", ")));
  }
  if (run_.IsMeasuring()) {
    return Text::tr("測定中です。Escで中止します。") + waiting;
  }
  switch (run_.WhatIsDue()) {
    case LotRun::Due::kBackground:
      return Text::tr("ReturnまたはSpaceでﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定します。") + waiting;
    case LotRun::Due::kReference:
      return Text::tr("ﾘﾌｧﾚﾝｽを置いて、ReturnまたはSpaceで測定します。") + waiting;
    case LotRun::Due::kNothing:
      break;
  }
  const QString typed = number_->text().simplified();
  if (asked_ && typed.isEmpty()) {
    return Text::tr("ReturnまたはSpaceで測り直します。Escでやめます。↑↓で理由を選びます。") +
           waiting;
  }
  return (typed.isEmpty()
              ? Text::tr("レンズを置き、番号を読み取るか、ReturnまたはSpaceで測定します。")
              : Text::tr("レンズ %1 を置いて、Returnで測定します。").arg(typed)) +
         waiting;
}

}  // namespace vexa

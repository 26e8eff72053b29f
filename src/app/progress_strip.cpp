// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/progress_strip.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kTickMs = 200;
constexpr int kHeight = 24;
constexpr int kOverdueMs = 1000;

QString StepText(AwaitedStep step) {
  switch (step) {
    case AwaitedStep::kController:
      return Text::tr("ｺﾝﾄﾛｰﾗの応答を待っています");
    case AwaitedStep::kLightShutter:
      return Text::tr("光ｼｬｯﾀの応答を待っています");
    case AwaitedStep::kEyepieceShutter:
      return Text::tr("接眼ｼｬｯﾀの応答を待っています");
    case AwaitedStep::kLamp:
      return Text::tr("ﾗﾝﾌﾟの応答を待っています");
    case AwaitedStep::kSettling:
      return Text::tr("安定するのを待っています");
    case AwaitedStep::kMeasurement:
      return Text::tr("測定しています");
    case AwaitedStep::kData:
      return Text::tr("ﾃﾞｰﾀを受信しています");
  }
  return {};
}

QString Seconds(qint64 ms) {
  return FormatNumber(static_cast<double>(ms) / 1000.0, u"##0.0");
}

}  // namespace

ProgressStrip::ProgressStrip(QWidget* parent)
    : QWidget(parent),
      text_(new QLabel),
      bar_(new QProgressBar),
      cancel_(new QPushButton(Text::tr("中止"))) {
  setFixedHeight(kHeight);
  text_->setObjectName(QStringLiteral("ProgressText"));
  bar_->setTextVisible(false);
  bar_->setFixedHeight(8);
  bar_->setFixedWidth(220);
  QSizePolicy keepsItsPlace = bar_->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  bar_->setSizePolicy(keepsItsPlace);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(4, 0, 4, 0);
  layout->setSpacing(12);
  layout->addWidget(text_, 1);
  layout->addWidget(bar_);
  layout->addWidget(cancel_);
  cancel_->setObjectName(QStringLiteral("Cancel"));
  cancel_->setToolTip(
      Text::tr("待っている操作を中止します (Esc、ほかのｳｨﾝﾄﾞｳが前にあるときは Shift+Esc)"));
  cancel_->setShortcut(Qt::Key_Escape);
  cancel_->setFocusPolicy(Qt::NoFocus);
  cancel_->hide();
  connect(cancel_, &QPushButton::clicked, this, &ProgressStrip::CancelRequested);
  ticks_.setInterval(kTickMs);
  connect(&ticks_, &QTimer::timeout, this, &ProgressStrip::Refresh);
  EndWait();
}

void ProgressStrip::BeginWait(AwaitedStep step, int expectedMs, int limitMs) {
  step_ = step;
  expectedMs_ = expectedMs;
  limitMs_ = limitMs;
  elapsed_.start();
  // Most replies come at once; a wait is shown with the first tick that finds it.
  if (!ticks_.isActive()) {
    ticks_.start();
  }
}

void ProgressStrip::EndWait() {
  ticks_.stop();
  bar_->hide();
  text_->setForegroundRole(QPalette::PlaceholderText);
  text_->setText(idleText_);
}

void ProgressStrip::ShowLink(bool connected, bool busy) {
  idleText_ = connected ? QString() : Text::tr("ｺﾝﾄﾛｰﾗ未接続");
  if (!ticks_.isActive()) {
    text_->setText(idleText_);
  }
  cancel_->setVisible(busy);
  qApp->removeEventFilter(this);
  if (busy) {
    qApp->installEventFilter(this);
  }
}

// While anything is waited for, Shift+Esc reaches it from every window, also past a dialog that
// takes Esc for itself.
bool ProgressStrip::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Escape && key.modifiers() == Qt::ShiftModifier) {
      emit CancelRequested();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ProgressStrip::Refresh() {
  const qint64 waited = elapsed_.elapsed();
  QString text = StepText(step_) + QStringLiteral("  ") + Seconds(waited);
  if (expectedMs_ > 0) {
    text += Text::tr(" / %1 秒").arg(Seconds(expectedMs_));
  } else {
    text += Text::tr(" 秒");
  }
  if (waited > expectedMs_ + kOverdueMs && limitMs_ > expectedMs_) {
    text += Text::tr("  (%1 秒で中断)").arg(limitMs_ / 1000);
  }
  text_->setForegroundRole(QPalette::WindowText);
  text_->setText(text);
  const int range = expectedMs_ > 0 ? expectedMs_ : limitMs_;
  bar_->setRange(0, std::max(range, 1));
  bar_->setValue(static_cast<int>(std::min<qint64>(waited, range)));
  bar_->show();
}

}  // namespace vexa

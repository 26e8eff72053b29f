// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/sampling_dlg.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

#include "base/number_text.h"
#include "base/translation.h"
#include "instrument/controller.h"
#include "views/common/dialog_buttons.h"
#include "views/common/theme.h"
#include "views/common/up_down_field.h"

namespace vexa {

namespace {

constexpr int kShortestTimeMs = 30;
constexpr int kLongestTimeMs = 20000;
constexpr int kMostLines = 16;
constexpr int kHintLines = 2;
constexpr int kUnitGap = 6;

}  // namespace

SamplingDlg::SamplingDlg(Session& session, MessageService& messages, QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      time_(new IntegerField),
      averaging_(new UpDownField(1, kMostLines)),
      hint_(new QLabel) {
  setObjectName(QStringLiteral("SamplingDlg"));
  setWindowTitle(Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ設定"));
  averaging_->Field().setObjectName(QStringLiteral("Averaging"));
  averaging_->Field().SetValue(state_.instrument.averagingCount);
  time_->setObjectName(QStringLiteral("Time"));
  time_->SetValue(state_.instrument.samplingTimeMs);
  auto* group = new QGroupBox(Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ"));
  auto* form = new QFormLayout(group);
  form->setHorizontalSpacing(24);
  form->setVerticalSpacing(10);
  // The two fields end below one another: behind one stand its arrows, behind the other its unit.
  constexpr int kArrowsWidth = 24;
  auto* unit = new QLabel(QStringLiteral("[ms]"));
  auto* averagingRow = new QHBoxLayout;
  averagingRow->setSpacing(0);
  averagingRow->addWidget(averaging_, 1);
  averagingRow->addSpacing(unit->sizeHint().width() + kUnitGap - kArrowsWidth);
  form->addRow(Text::tr("取り込み平均回数"), averagingRow);
  auto* timeRow = new QHBoxLayout;
  timeRow->addWidget(time_, 1);
  timeRow->addWidget(unit);
  timeRow->setSpacing(kUnitGap);
  form->addRow(Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ時間"), timeRow);
  averaging_->setToolTip(Text::tr("一回の測定で取り込み、平均するﾗｲﾝ数です (1～16)。"));
  time_->setToolTip(
      Text::tr("一ﾗｲﾝの積算時間です (30～20000 ms)。長いほど光量が増え、飽和に近づきます。"));
  hint_->setObjectName(QStringLiteral("SamplingHint"));
  hint_->setWordWrap(true);
  hint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  hint_->setFixedHeight(kHintLines * hint_->fontMetrics().lineSpacing());
  QPalette calm = hint_->palette();
  calm.setColor(QPalette::WindowText, theme::kAccent);
  hint_->setPalette(calm);
  form->addRow(hint_);
  for (const QLineEdit* field :
       {static_cast<QLineEdit*>(time_), static_cast<QLineEdit*>(&averaging_->Field())}) {
    connect(field, &QLineEdit::textChanged, this, &SamplingDlg::UpdateHint);
  }
  UpdateHint();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 16, 18, 16);
  layout->setSpacing(16);
  layout->addWidget(group);
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

// The controller answers a measurement when its last line is taken.
void SamplingDlg::UpdateHint() {
  const qint64 duration =
      qint64{time_->Value().value_or(0)} * averaging_->Field().Value().value_or(0);
  hint_->setText(
      duration < Controller::kReplyTimeoutMs
          ? QString()
          : Text::tr("一回の測定に %1 秒かかります。ｺﾝﾄﾛｰﾗの応答は %2 秒で打ち切られるため、"
                     "測定できません。")
                .arg(FormatNumber(static_cast<double>(duration) / 1000.0, u"##0.0"))
                .arg(Controller::kReplyTimeoutMs / 1000));
}

void SamplingDlg::accept() {
  const std::optional<int> timeMs = time_->Value();
  const std::optional<int> averaging = averaging_->Field().Value();
  if (!timeMs || !averaging || *timeMs < kShortestTimeMs || *timeMs > kLongestTimeMs) {
    messages_.Tell({Message::kSamplingTimeOutOfRange});
    const bool timeAtFault = !timeMs || *timeMs < kShortestTimeMs || *timeMs > kLongestTimeMs;
    EnterAgain(timeAtFault ? *time_ : averaging_->Field());
    return;
  }
  if (*averaging < 1 || *averaging > kMostLines) {
    messages_.Tell({Message::kAveragingOutOfRange});
    EnterAgain(averaging_->Field());
    return;
  }
  Settings settings = session_.SettingsInForce();
  settings.instrument.samplingTimeMs = static_cast<std::int16_t>(*timeMs);
  settings.instrument.averagingCount = static_cast<std::int16_t>(*averaging);
  session_.TakeSettings(settings);
  QDialog::accept();
}

}  // namespace vexa

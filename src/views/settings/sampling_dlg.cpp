// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/sampling_dlg.h"

#include <QFormLayout>
#include <QGroupBox>

#include "measurement/controller_start.h"
#include "views/common/dialog_buttons.h"
#include "views/common/up_down_field.h"

namespace vexa {

namespace {

constexpr int kShortestTimeMs = 30;
constexpr int kLongestTimeMs = 20000;
constexpr int kMostLines = 16;

}  // namespace

SamplingDlg::SamplingDlg(VEXATYPE& state, Controller& controller, MessageService& messages,
                         QWidget* parent)
    : QDialog(parent),
      state_(state),
      controller_(controller),
      messages_(messages),
      time_(new IntegerField),
      averaging_(new UpDownField(1, kMostLines)) {
  setObjectName(QStringLiteral("SamplingDlg"));
  setWindowTitle(QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ設定"));
  averaging_->Field().setObjectName(QStringLiteral("Averaging"));
  averaging_->Field().SetValue(state.instrument.averagingCount);
  time_->setObjectName(QStringLiteral("Time"));
  time_->SetValue(state.instrument.samplingTimeMs);
  auto* group = new QGroupBox(QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ"));
  auto* form = new QFormLayout(group);
  form->setHorizontalSpacing(24);
  form->setVerticalSpacing(10);
  form->addRow(QStringLiteral("取り込み平均回数"), averaging_);
  form->addRow(QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ時間"), time_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 16, 18, 16);
  layout->setSpacing(16);
  layout->addWidget(group);
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void SamplingDlg::accept() {
  const std::optional<int> timeMs = time_->Value();
  const std::optional<int> averaging = averaging_->Field().Value();
  if (!timeMs || !averaging || *timeMs < kShortestTimeMs || *timeMs > kLongestTimeMs) {
    messages_.Tell({Message::kSamplingTimeOutOfRange});
    return;
  }
  if (*averaging < 1 || *averaging > kMostLines) {
    messages_.Tell({Message::kAveragingOutOfRange});
    return;
  }
  state_.instrument.samplingTimeMs = static_cast<std::int16_t>(*timeMs);
  state_.instrument.averagingCount = static_cast<std::int16_t>(*averaging);
  (void)SendSamplingSettings(controller_, state_.instrument, messages_);
  QDialog::accept();
}

}  // namespace vexa

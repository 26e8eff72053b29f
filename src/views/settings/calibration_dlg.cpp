// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/calibration_dlg.h"

#include <QFormLayout>

#include "base/translation.h"
#include "files/keep_unreadable.h"
#include "instrument/calibration_file.h"
#include "views/common/dialog_buttons.h"
#include "views/common/file_questions.h"
#include "views/common/up_down_field.h"

namespace vexa {

CalibrationDlg::CalibrationDlg(Session& session, MessageService& messages, QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      shift_(new UpDownField(0, kLargestCalibrationShiftNm)) {
  setObjectName(QStringLiteral("CalibrationDlg"));
  setWindowTitle(Text::tr("ｷｬﾘﾌﾞﾚｰｼｮﾝ"));
  shift_->setToolTip(
      Text::tr("光量の波長をずらす量です (0～7 nm)。測定済みの光量にも、次の計算から使われます。"));
  shift_->Field().setObjectName(QStringLiteral("Shift"));
  shift_->Field().SetValue(state_.instrument.calibrationShiftNm);
  auto* form = new QFormLayout;
  form->setHorizontalSpacing(24);
  form->addRow(Text::tr("ｼﾌﾄ値"), shift_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(22, 20, 22, 16);
  layout->setSpacing(20);
  layout->addLayout(form);
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void CalibrationDlg::accept() {
  const std::optional<int> shift = shift_->Field().Value();
  if (!shift || *shift < 0 || *shift > kLargestCalibrationShiftNm) {
    messages_.Tell({Message::kShiftOutOfRange});
    EnterAgain(shift_->Field());
    return;
  }
  Take(static_cast<std::int16_t>(*shift));
}

QCoro::Task<> CalibrationDlg::Take(std::int16_t shiftNm) {
  const QString path = CompletePath(state_, QStringLiteral("vexa.cal"));
  const bool may = co_await MayReplaceKnown(state_.knownFiles, path, messages_);
  if (!may) {
    co_return;
  }
  messages_.Tell({Message::kShiftChanged, {path}});
  const WriteResult kept =
      KeepUnreadable(path, [&path] { return static_cast<bool>(ReadCalibrationFile(path)); });
  Settings settings = session_.SettingsInForce();
  settings.instrument.calibrationShiftNm = shiftNm;
  if (TellWritten(kept ? WriteCalibrationFile(path, shiftNm) : kept, path, messages_)) {
    settings.knownFiles.Remember(path);
  }
  session_.TakeSettings(settings);
  QDialog::accept();
}

}  // namespace vexa

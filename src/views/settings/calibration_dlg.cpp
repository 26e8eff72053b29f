// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/calibration_dlg.h"

#include <QFormLayout>

#include "files/keep_unreadable.h"
#include "instrument/calibration_file.h"
#include "views/common/dialog_buttons.h"
#include "views/common/up_down_field.h"
#include "views/files/data_file_commands.h"

namespace vexa {

CalibrationDlg::CalibrationDlg(VEXATYPE& state, MessageService& messages, QWidget* parent)
    : QDialog(parent),
      state_(state),
      messages_(messages),
      shift_(new UpDownField(0, kLargestCalibrationShiftNm)) {
  setObjectName(QStringLiteral("CalibrationDlg"));
  setWindowTitle(QStringLiteral("ｷｬﾘﾌﾞﾚｰｼｮﾝ"));
  shift_->Field().setObjectName(QStringLiteral("Shift"));
  shift_->Field().SetValue(state.instrument.calibrationShiftNm);
  auto* form = new QFormLayout;
  form->setHorizontalSpacing(24);
  form->addRow(QStringLiteral("ｼﾌﾄ値"), shift_);
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
    return;
  }
  const QString path = CompletePath(state_, QStringLiteral("vexa.cal"));
  messages_.Tell({Message::kShiftChanged, {path}});
  state_.instrument.calibrationShiftNm = static_cast<std::int16_t>(*shift);
  const WriteResult kept =
      KeepUnreadable(path, [&path] { return static_cast<bool>(ReadCalibrationFile(path)); });
  (void)TellWritten(kept ? WriteCalibrationFile(path, state_.instrument.calibrationShiftNm) : kept,
                    path, messages_);
  QDialog::accept();
}

}  // namespace vexa

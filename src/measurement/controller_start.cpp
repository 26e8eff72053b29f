// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/controller_start.h"

#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/gpib_control_box.h"
#include "instrument/serial_port_path.h"

namespace vexa {

std::unique_ptr<Controller> MakeController(const VEXATYPE& state, MessageService& messages,
                                           int replyTimeoutMs) {
  const QString& directory = state.programDirectory;
  if (state.instrument.controllerPort == 0) {
    return std::make_unique<GpibControlBox>(directory, messages, replyTimeoutMs);
  }
  return std::make_unique<frmComH8Ctrl>(
      [directory](int port) { return SerialPortPath(directory, port); }, replyTimeoutMs);
}

void ReportControllerFailure(const Controller& controller, MessageService& messages) {
  messages.MsgCallWithDetails(QStringLiteral("通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。"),
                              message_type::kOk + message_type::kStopIcon,
                              QStringLiteral("ｺﾝﾄﾛｰﾗｴﾗｰ"), controller.FailureDetails());
}

Status SendSamplingSettings(Controller& controller, const InstrumentSettings& settings,
                            MessageService& messages) {
  const Status status = controller.SetSampling(settings.samplingTimeMs, settings.averagingCount);
  if (status != 0) {
    messages.MsgCall(QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ設定でｴﾗｰが発生しました。"),
                     message_type::kOk + message_type::kStopIcon, message_title::kError);
  }
  return status;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/controller_start.h"

namespace vexa {

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

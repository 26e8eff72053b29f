// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/controller_start.h"

#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/gpib_control_box.h"
#include "instrument/serial_port_path.h"

namespace vexa {

std::unique_ptr<Controller> MakeController(const VEXATYPE& state, int replyTimeoutMs) {
  const QString& directory = state.programDirectory;
  if (state.instrument.controllerPort == 0) {
    return std::make_unique<GpibControlBox>(directory, replyTimeoutMs);
  }
  return std::make_unique<frmComH8Ctrl>(
      [directory](int port) { return SerialPortPath(directory, port); }, replyTimeoutMs);
}

Sampling SamplingOf(const InstrumentSettings& settings) {
  return {settings.samplingTimeMs, settings.averagingCount};
}

void TellControllerFailure(const Controller& controller, Message what, MessageService& messages) {
  if (const std::optional<MessageCall> own = controller.FailureMessage()) {
    messages.Tell(*own);
  }
  messages.Tell({what, {}, controller.FailureDetails()});
}

}  // namespace vexa

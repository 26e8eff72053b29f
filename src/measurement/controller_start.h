// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The controller that the settings name: port 0 is the older control box on the GP-IB, which shows
/// messages of its own, any other the board on that serial port. The devices are looked for in the
/// program directory first.
[[nodiscard]] std::unique_ptr<Controller> MakeController(
    const VEXATYPE& state, MessageService& messages,
    int replyTimeoutMs = Controller::kReplyTimeoutMs);

/// Shows the device error of a controller that could not be initialised.
void ReportControllerFailure(const Controller& controller, MessageService& messages);

/// Sends sampling time and averaging count to the controller; a failure is shown. Returns the
/// controller's status, 0 when they are set.
[[nodiscard]] Status SendSamplingSettings(Controller& controller,
                                          const InstrumentSettings& settings,
                                          MessageService& messages);

}  // namespace vexa

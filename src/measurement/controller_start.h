// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The controller that the settings name: port 0 is the older control box on the GP-IB, any other
/// the board on that serial port. The devices are looked for in the program directory first.
[[nodiscard]] std::unique_ptr<Controller> MakeController(
    const VEXATYPE& state, int replyTimeoutMs = Controller::kReplyTimeoutMs);

/// The sampling that the settings ask for.
[[nodiscard]] Sampling SamplingOf(const InstrumentSettings& settings);

/// Tells why a controller could not be initialised, or would not take its sampling.
void TellControllerFailure(const Controller& controller, Message what, MessageService& messages);

}  // namespace vexa

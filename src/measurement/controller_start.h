// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Initialises the controller on its port; a failure shows the device error. Returns the
/// controller's status, 0 when it is ready.
[[nodiscard]] Status InitialiseController(Controller& controller,
                                          const InstrumentSettings& settings,
                                          MessageService& messages);

/// Sends sampling time and averaging count to the controller; a failure is shown. Returns the
/// controller's status, 0 when they are set.
[[nodiscard]] Status SendSamplingSettings(Controller& controller,
                                          const InstrumentSettings& settings,
                                          MessageService& messages);

}  // namespace vexa

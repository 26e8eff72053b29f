// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Shows the device error of a controller that could not be initialised.
void ReportControllerFailure(const Controller& controller, MessageService& messages);

/// Sends sampling time and averaging count to the controller; a failure is shown. Returns the
/// controller's status, 0 when they are set.
[[nodiscard]] Status SendSamplingSettings(Controller& controller,
                                          const InstrumentSettings& settings,
                                          MessageService& messages);

}  // namespace vexa

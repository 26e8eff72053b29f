// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "base/status.h"
#include "measurement/vexatype.h"

namespace vexa {

/// What every spectrum that comes into a slot goes through, measured or loaded, in its fixed order:
/// colour values, average reflectance, accumulation (with its messages at 100 points), judgement.
void EvaluateSlot(VEXATYPE& state, MeasurementSlot& slot, MessageService& messages);

/// Colour values and average reflectance under the settings in force.
void ComputeColours(const ColourSettings& settings, MeasurementSlot& slot);

/// The slot's verdicts under the standards in force.
void JudgeSlot(const VEXATYPE& state, MeasurementSlot& slot);

/// Colours and verdicts of all valid slots after the settings or the standards changed; nothing is
/// accumulated.
void EvaluateAgain(VEXATYPE& state);

/// Computes the thickness for the slot and makes its extrema the current ones. A failure is shown,
/// leaves zeros and no extrema, and is the status returned.
Status ComputeSlotThickness(VEXATYPE& state, MeasurementSlot& slot, MessageService& messages);

}  // namespace vexa

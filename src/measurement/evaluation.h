// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message.h"
#include "base/status.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Colour values and average reflectance under the settings in force. What cannot be computed is 0.
void ComputeColours(const ColourSettings& settings, MeasurementSlot& slot);

/// The slot's verdicts under the standards in force.
void JudgeSlot(const VEXATYPE& state, MeasurementSlot& slot);

/// Colours and verdicts of all valid slots after the settings or the standards changed; nothing is
/// accumulated.
void EvaluateAgain(VEXATYPE& state);

/// Computes the thickness for the slot, with the index in force; when that is computed from the
/// substrate's, the film's index is kept with the slot that it belongs to. The doubts about the
/// number are kept beside it. A failure leaves zeros
/// and no extrema: the status of ComputeThickness, or kIndexMissing.
[[nodiscard]] Status ComputeSlotThickness(const VEXATYPE& state, MeasurementSlot& slot);

inline constexpr Status kIndexMissing = -5;  ///< the index that the setting names is not loaded

/// The point that a slot gives the history: the thickness of its extrema, and beside it that of a
/// fit that is beyond doubt; or this one alone, of the layer next to the air. Nothing without both.
[[nodiscard]] std::optional<HistoryPoint> HistoryPointOf(const MeasurementSlot& slot);

/// What to tell of a colour that filled the accumulated ones, or found them full.
[[nodiscard]] std::optional<MessageCall> AccumulationMessage(std::optional<StockAddResult> result);

/// What to tell of a thickness that the history did not take.
[[nodiscard]] std::optional<MessageCall> HistoryRefusal(HistoryAddResult result);

/// What to tell of a status of ComputeSlotThickness other than success.
[[nodiscard]] MessageCall SlotThicknessMessage(Status status);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/evaluation.h"

#include "base/translation.h"

namespace vexa {

void ComputeColours(const ColourSettings& settings, MeasurementSlot& slot) {
  // A spectrum without a colour has what could be computed of it; there is no message for it.
  slot.colour = {};
  (void)CalcColour(slot.reflectance, settings, slot.colour);
  (void)AverageReflectance(slot.reflectance, settings.avgFrom, settings.avgTo, slot.colour.Rm);
}

void JudgeSlot(const VEXATYPE& state, MeasurementSlot& slot) {
  slot.judgement = JudgeStandards(slot.reflectance, slot.colour, state.standard);
}

void EvaluateAgain(VEXATYPE& state) {
  for (MeasurementSlot& slot : state.measurementSlots) {
    if (slot.valid) {
      ComputeColours(state.colour, slot);
      JudgeSlot(state, slot);
    }
  }
}

Status ComputeSlotThickness(const VEXATYPE& state, MeasurementSlot& slot) {
  slot.thickness = {};
  slot.doubts.clear();
  slot.filmIndex = {};
  const bool fromSubstrate = state.thickness.coat.kind == DispersionKind::kSubstrate;
  if (fromSubstrate && state.thickness.type == ThicknessType::kC) {
    return kThicknessFault;  // this type derives no index of the film
  }
  const bool needsIndex = fromSubstrate || state.thickness.kind != ThicknessKind::kOptical;
  if (needsIndex && (fromSubstrate ? state.substrateIndex : state.filmIndex).IsEmpty()) {
    return kIndexMissing;
  }
  ReflectanceSpectrum filmIndex = state.filmIndex;
  const Status status =
      ComputeThickness(state.thickness.type, state.thickness.kind, state.thickness.coat.kind,
                       state.substrateIndex, slot.reflectance, filmIndex, slot.thickness);
  if (fromSubstrate && status == kSuccess) {
    slot.filmIndex = filmIndex;
  }
  slot.doubts =
      FindThicknessDoubts(state.thickness.type, slot.reflectance, filmIndex, slot.thickness);
  return status;
}

std::optional<HistoryPoint> HistoryPointOf(const MeasurementSlot& slot) {
  const bool fitted = slot.fit && slot.fit->outcome == FitOutcome::kOk;
  const double fitNm = fitted ? slot.fit->layers.front().thicknessNm : 0.0;
  if (slot.thickness.IsComputed()) {
    // An optical thickness and the fit's are not of one scale.
    return HistoryPoint{slot.thickness.thicknessNm,
                        slot.thickness.physical,
                        {slot.doubts, false, slot.thickness.physical ? fitNm : 0.0}};
  }
  return fitted ? std::optional(HistoryPoint{fitNm, true, {{}, true, 0.0}}) : std::nullopt;
}

std::optional<MessageCall> AccumulationMessage(std::optional<StockAddResult> result) {
  if (result == StockAddResult::kStoredLast) {
    return MessageCall{Message::kStockNowFull};
  }
  if (result == StockAddResult::kRefused) {
    return MessageCall{Message::kStockFull};
  }
  return std::nullopt;
}

std::optional<MessageCall> HistoryRefusal(HistoryAddResult result) {
  switch (result) {
    case HistoryAddResult::kKindDiffers:
      return MessageCall{Message::kHistoryKindDiffers};
    case HistoryAddResult::kFull:
      return MessageCall{Message::kHistoryFull};
    case HistoryAddResult::kAdded:
      break;
  }
  return std::nullopt;
}

MessageCall SlotThicknessMessage(Status status) {
  return status == kIndexMissing
             ? MessageCall{Message::kIndexFileFault, {Text::tr("ｲﾝﾃﾞｯｸｽ") + u'\r'}}
             : ThicknessMessage(status);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/evaluation.h"

namespace vexa {

using namespace message_type;

namespace {

void Accumulate(VEXATYPE& state, const ColourResult& colour, MessageService& messages) {
  switch (state.stock.StockAdd(colour, state.display.xyMode)) {
    case StockAddResult::kStored:
      break;
    case StockAddResult::kStoredLast:
      messages.MsgCall(QStringLiteral("累積データ数が100になりました"), kOk + kInformationIcon,
                       message_title::kMessage);
      break;
    case StockAddResult::kRefused:
      messages.MsgCall(
          QStringLiteral("累積データ数が100を越えました。データをクリアしてください。"),
          kOk + kInformationIcon, message_title::kMessage);
      break;
  }
}

}  // namespace

void EvaluateSlot(VEXATYPE& state, MeasurementSlot& slot, MessageService& messages) {
  ComputeColours(state.colour, slot);
  if (state.accumulate && slot.colour.IsComputed()) {
    Accumulate(state, slot.colour, messages);
  }
  JudgeSlot(state, slot);
}

void ComputeColours(const ColourSettings& settings, MeasurementSlot& slot) {
  slot.colour = {};
  // A spectrum without a colour keeps what could be computed of it; there is no message for it.
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

Status ComputeSlotThickness(VEXATYPE& state, MeasurementSlot& slot, MessageService& messages) {
  // In substrate mode the index of the film is derived anew from each sample.
  const Status status =
      ComputeThickness(state.thickness.type, state.thickness.kind, state.thickness.coat.kind,
                       state.substrateIndex, slot.reflectance, state.filmIndex, slot.thickness);
  state.extrema = slot.thickness.extrema;
  if (status != 0) {
    messages.MsgCall(ThicknessStatusText(status), kOk + kStopIcon, message_title::kError);
  }
  return status;
}

}  // namespace vexa

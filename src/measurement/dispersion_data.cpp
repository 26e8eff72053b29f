// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/dispersion_data.h"

#include "base/translation.h"
#include "optics/bunsan.h"

namespace vexa {
namespace {

Message DispersionMessage(Status status) {
  switch (status) {
    case kDispersionFault:
      return Message::kDispersionFault;
    case kSubstrateFileFault:
      return Message::kSubstrateFileFault;
    default:
      return Message::kIndexFileFault;
  }
}

bool Build(Flag asReflectance, const DispersionSetting& setting, const QString& name,
           ReflectanceSpectrum& result, MessageService& messages) {
  result = {};
  const Status status = GetBunsanArray(asReflectance, setting, result, messages);
  if (status != 0) {
    messages.Tell({DispersionMessage(status), {name + u'\r'}});
  }
  return status == 0;
}

}  // namespace

void StoreCoatSpectrum(VEXATYPE& state, const ReflectanceSpectrum& spectrum) {
  (state.thickness.coat.kind == DispersionKind::kSubstrate ? state.substrateIndex
                                                           : state.filmIndex) = spectrum;
}

bool LoadCoatData(VEXATYPE& state, MessageService& messages) {
  ReflectanceSpectrum coat;
  const bool built = Build(false, state.thickness.coat, Text::tr("ｲﾝﾃﾞｯｸｽ"), coat, messages);
  StoreCoatSpectrum(state, coat);
  return built;
}

void LoadDispersionData(VEXATYPE& state, MessageService& messages) {
  Build(true, state.referenceSetting, Text::tr("ﾘﾌｧﾚﾝｽ"), state.referenceReflectance,
        messages);
  LoadCoatData(state, messages);
}

}  // namespace vexa

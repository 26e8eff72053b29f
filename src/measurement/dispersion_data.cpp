// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/dispersion_data.h"

#include "optics/bunsan.h"

namespace vexa {
namespace {

bool Build(Flag asReflectance, const DispersionSetting& setting, const QString& name,
           ReflectanceSpectrum& result, MessageService& messages) {
  const Status status = GetBunsanArray(asReflectance, setting, result, messages);
  if (status != 0) {
    messages.MsgCall(name + QStringLiteral("\r") + DispersionStatusText(status),
                     message_type::kOk + message_type::kWarningIcon, QStringLiteral("VEXA-KT"));
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
  if (!Build(false, state.thickness.coat, QStringLiteral("ｲﾝﾃﾞｯｸｽ"), coat, messages)) {
    return false;
  }
  StoreCoatSpectrum(state, coat);
  return true;
}

void LoadDispersionData(VEXATYPE& state, MessageService& messages) {
  Build(true, state.referenceSetting, QStringLiteral("ﾘﾌｧﾚﾝｽ"), state.referenceReflectance,
        messages);
  LoadCoatData(state, messages);
}

}  // namespace vexa

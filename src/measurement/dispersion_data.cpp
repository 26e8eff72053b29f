// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/dispersion_data.h"

#include "base/translation.h"
#include "optics/bunsan.h"

namespace vexa {
namespace {

ReflectanceSpectrum Build(Flag asReflectance, const DispersionSetting& setting, const QString& name,
                          SpectraBuilt& built) {
  const Dispersion dispersion = GetBunsanArray(asReflectance, setting);
  if (dispersion.notice) {
    built.notices << *dispersion.notice;
  }
  if (const std::optional<MessageCall> message = DispersionMessage(dispersion.status, name)) {
    built.notices << *message;
    built.all = false;
  }
  return dispersion.spectrum;
}

void BuildCoat(VEXATYPE& state, SpectraBuilt& built) {
  StoreCoatSpectrum(state, Build(false, state.thickness.coat, Text::tr("ｲﾝﾃﾞｯｸｽ"), built));
}

}  // namespace

void StoreCoatSpectrum(VEXATYPE& state, const ReflectanceSpectrum& spectrum) {
  (state.thickness.coat.kind == DispersionKind::kSubstrate ? state.substrateIndex
                                                           : state.filmIndex) = spectrum;
}

SpectraBuilt LoadCoatData(VEXATYPE& state) {
  SpectraBuilt built;
  BuildCoat(state, built);
  return built;
}

SpectraBuilt LoadDispersionData(VEXATYPE& state) {
  SpectraBuilt built;
  state.referenceReflectance = Build(true, state.referenceSetting, Text::tr("ﾘﾌｧﾚﾝｽ"), built);
  BuildCoat(state, built);
  return built;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/dispersion_data.h"

#include "base/translation.h"
#include "optics/bunsan.h"

namespace vexa {
namespace {

// The file that a setting names; empty when it names none.
QString NamedFile(const DispersionSetting& setting) {
  switch (setting.kind) {
    case DispersionKind::kIndexFile:
      return setting.indexFileName;
    case DispersionKind::kSubstrate:
      return setting.dataFileName;
    default:
      return {};
  }
}

ReflectanceSpectrum Build(Flag asReflectance, const DispersionSetting& setting, const QString& name,
                          SpectraBuilt& built) {
  const Dispersion dispersion = GetBunsanArray(asReflectance, setting);
  if (dispersion.notice) {
    built.notices << *dispersion.notice;
  }
  if (std::optional<MessageCall> message = DispersionMessage(dispersion.status, name)) {
    message->details = NamedFile(setting);
    built.notices << *message;
    built.all = false;
  }
  return dispersion.spectrum;
}

void BuildCoat(Settings& settings, SpectraBuilt& built) {
  StoreCoatSpectrum(settings, Build(false, settings.thickness.coat, Text::tr("ｲﾝﾃﾞｯｸｽ"), built));
}

}  // namespace

void StoreCoatSpectrum(Settings& settings, const ReflectanceSpectrum& spectrum) {
  (settings.thickness.coat.kind == DispersionKind::kSubstrate ? settings.substrateIndex
                                                              : settings.filmIndex) = spectrum;
}

SpectraBuilt LoadCoatData(Settings& settings) {
  SpectraBuilt built;
  BuildCoat(settings, built);
  return built;
}

SpectraBuilt LoadDispersionData(Settings& settings) {
  SpectraBuilt built;
  settings.referenceReflectance = Build(true, settings.referenceSetting, Text::tr("ﾘﾌｧﾚﾝｽ"), built);
  BuildCoat(settings, built);
  return built;
}

}  // namespace vexa

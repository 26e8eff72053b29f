// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Stores a spectrum computed for the coat's setting: as the index of the substrate when the
/// setting is a substrate, else as the index of the film.
void StoreCoatSpectrum(Settings& settings, const ReflectanceSpectrum& spectrum);

/// What came of building spectra from their settings.
struct [[nodiscard]] SpectraBuilt {
  bool all = true;             ///< each could be built
  QList<MessageCall> notices;  ///< to be told one after another, named by their setting
};

/// Builds the index array of the coat's setting. One that cannot be built is zeros, as it is before
/// anything was built: never the spectrum of an earlier setting.
SpectraBuilt LoadCoatData(Settings& settings);

/// Builds the reference reflectance and the index arrays from their settings, likewise.
SpectraBuilt LoadDispersionData(Settings& settings);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Stores a spectrum computed for the coat's setting: as the index of the substrate when the
/// setting is a substrate, else as the index of the film.
void StoreCoatSpectrum(VEXATYPE& state, const ReflectanceSpectrum& spectrum);

/// Builds the index array of the coat's setting. False, with a message and an empty array, when
/// it cannot be built.
bool LoadCoatData(VEXATYPE& state, MessageService& messages);

/// Builds the reference reflectance and the index arrays from their settings. Where one cannot be
/// built, a message names the setting, and the array is empty.
void LoadDispersionData(VEXATYPE& state, MessageService& messages);

}  // namespace vexa

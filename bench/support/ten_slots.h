// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "measurement/vexatype.h"

namespace vexa::bench {

/// Fills all slots with fringes and a little roughness, as measured spectra have them.
inline void FillSlots(VEXATYPE& state) {
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    for (int nm = 440; nm <= 840; ++nm) {
      state.Slot(slot)->reflectance[nm] =
          4.0 + slot * 0.3 * std::sin(nm * 0.01 * slot) + 0.02 * (nm * 7919 % 13);
    }
    state.Slot(slot)->valid = true;
  }
}

}  // namespace vexa::bench

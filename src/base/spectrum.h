// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/wavelength_array.h"

namespace vexa {

/// Light amount per nanometre in averaged 12-bit detector counts (0..4095). It reaches 8 nm past
/// the measuring range, so that any index of the range may be moved up by the calibration shift.
using RawSpectrum = WavelengthArray<440, 848>;

/// A quantity over the measuring range: reflectance in percent (never negative), or an index.
using ReflectanceSpectrum = WavelengthArray<440, 840>;

}  // namespace vexa

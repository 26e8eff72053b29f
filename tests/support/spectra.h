// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/spectrum.h"

namespace vexa::test {

/// The reflectance that `valueAt` gives for each wavelength in nm.
template <typename ValueAt>
ReflectanceSpectrum SpectrumOf(ValueAt valueAt) {
  ReflectanceSpectrum spectrum;
  for (int nm = 440; nm <= 840; ++nm) {
    spectrum[nm] = valueAt(nm);
  }
  return spectrum;
}

inline ReflectanceSpectrum Flat(double value) {
  return SpectrumOf([value](int) { return value; });
}

}  // namespace vexa::test

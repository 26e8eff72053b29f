// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/reflectance.h"

#include <algorithm>

namespace vexa {

ReflectanceSpectrum ComputeReflectance(const RawSpectrum& sample, const RawSpectrum& background,
                                       const RawSpectrum& reference, int shiftNm,
                                       const ReflectanceSpectrum& referenceReflectance) {
  const int shift = std::clamp(shiftNm, 0, 7);
  ReflectanceSpectrum reflectance;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    const double s = sample[nm + shift] - background[nm + shift];
    const double r = reference[nm + shift] - background[nm + shift];
    if (s != 0.0 && r != 0.0) {
      reflectance[nm] = std::max(s / r * referenceReflectance[nm], 0.0);
    }
  }
  return reflectance;
}

}  // namespace vexa

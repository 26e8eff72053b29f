// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/spectrum.h"

namespace vexa {

/// Reflectance in percent at every nanometre n of 440..840:
/// (sample - background) / (reference - background) at n + shiftNm, times the reflectance of the
/// reference at n. Where one of the differences is zero, or the result negative, it is 0.
/// `shiftNm` is 0..7, so that n + shiftNm stays within a RawSpectrum; it is limited to that.
[[nodiscard]] ReflectanceSpectrum ComputeReflectance(
    const RawSpectrum& sample, const RawSpectrum& background, const RawSpectrum& reference,
    int shiftNm, const ReflectanceSpectrum& referenceReflectance);

}  // namespace vexa

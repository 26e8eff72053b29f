// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measurement/vexatype.h"

namespace vexa {

/// The standard deviation of a reflectance at each wavelength, up to a common factor, by the noise
/// of the counts that it is computed from: a constant part, as the background has it, and one that
/// grows as the root of the light (shot noise), as the reference has it besides, both in the mean
/// of as many lines as were averaged. Both are told by the third differences of the two frames, in
/// which the light itself vanishes. Zeros where that tells nothing, as without light.
[[nodiscard]] ReflectanceSpectrum ReflectanceNoise(const VEXATYPE& state, const RawSpectrum& sample,
                                                   const SampleBasis& basis);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/spectrum.h"
#include "optics/extremum_list.h"

namespace vexa {

/// Which extrema a search records.
enum class ExtremaWanted { kMaxima, kMinima, kBoth };

/// The whole nanometre nearest to a wavelength, half to even, limited to 440..840.
[[nodiscard]] int NearestNm(double wavelengthNm);

/// The centred moving average over 11 points; near the ends over the points there are. Such a cut
/// window can turn an extremum nearer than 7 nm to an end into two, with one of the other sort
/// between.
[[nodiscard]] ReflectanceSpectrum Smoothed(const ReflectanceSpectrum& spectrum);

/// Walks over the slopes of `smoothed` and records the wanted extrema with their value in
/// `spectrum`. A flat run counts as an extremum in its middle by the slope that follows it alone:
/// rising, flat, rising is a minimum. False, with `list.count` at the limit, as soon as the limit
/// is reached.
[[nodiscard]] bool DetectExtrema(const ReflectanceSpectrum& smoothed,
                                 const ReflectanceSpectrum& spectrum, ExtremaWanted wanted,
                                 ExtremumList& list);

/// Moves each extremum of the list to the highest or lowest point of `spectrum` within 5 nm. Of
/// equal points the first counts, moved up by half a nanometre for each further one.
void RefineExtrema(const ReflectanceSpectrum& spectrum, ExtremumList& list);

}  // namespace vexa

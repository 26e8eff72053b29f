// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/spectrum.h"
#include "optics/thickness.h"

namespace vexa {

/// Why a result of ComputeThickness should not be believed. The first four are signs that an
/// extremum was split, missed or misread; they count unless the fringes as a whole confirm the
/// number.
enum class ThicknessDoubt {
  kEdge,       ///< an extremum that counts lies within 7 nm of an end of the range
  kDuplicate,  ///< the same extremum twice, or two neighbours of the same kind
  kSpacing,    ///< the extrema are not spaced as one film's orders are
  kNoise,      ///< a fringe not higher than the noise
  kDisagrees,  ///< differs by more than 1.4 % from what the fringes as a whole say
};

/// The doubts about a result, each once, in the order of the enumeration; none for a result that
/// was not computed. `type` and `filmIndex` are those that ComputeThickness took, the index as it
/// left it.
[[nodiscard]] std::vector<ThicknessDoubt> FindThicknessDoubts(std::int16_t type,
                                                              const ReflectanceSpectrum& spectrum,
                                                              const ReflectanceSpectrum& filmIndex,
                                                              const ThicknessResult& result);

/// "edge", "duplicate", "spacing", "noise", "disagrees".
[[nodiscard]] QString ThicknessDoubtName(ThicknessDoubt doubt);

/// The doubt of that name; nothing for another text.
[[nodiscard]] std::optional<ThicknessDoubt> ThicknessDoubtOf(const QString& name);

/// The doubt in words, for the user.
[[nodiscard]] QString ThicknessDoubtText(ThicknessDoubt doubt);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "base/flag.h"

namespace vexa {

inline constexpr std::size_t kConditionCount = 10;

/// The range that one group or one condition asks for; both ends belong to it.
struct StandardLimits {
  Flag enabled;
  double upper = 100.0;
  double lower = 0.0;

  bool operator==(const StandardLimits&) const = default;
};

/// Limits of the wavelength, in nm, of the highest or of the lowest reflectance.
struct WavelengthValueLimits {
  StandardLimits limits{false, 840.0, 440.0};
  std::int16_t selector = 1;  ///< non-zero: peak; zero: bottom

  bool operator==(const WavelengthValueLimits&) const = default;
};

/// What a measured sample must meet; the initial values are the built-in defaults. Values that came
/// from a file may be anything: wavelengths out of range, limits in the wrong order.
struct StandardSet {
  Flag useReflectance;
  /// nm, condition k counted from 1 at index k - 1
  std::array<std::int16_t, kConditionCount> wavelengths{440, 440, 440, 440, 440,
                                                        440, 440, 440, 440, 440};
  std::array<StandardLimits, kConditionCount> conditions;  ///< percent, at those wavelengths
  StandardLimits averageReflectance;                       ///< percent
  StandardLimits luminousReflectance;                      ///< percent
  WavelengthValueLimits wavelengthValue;
  StandardLimits chroma;                       ///< C*
  StandardLimits hueAngle{false, 360.0, 0.0};  ///< degrees; upper below lower: through 0

  bool operator==(const StandardSet&) const = default;
};

/// A value that is marked on the a*b* diagram beside the standard.
struct ReferenceMarker {
  Flag shown;
  double value = 0.0;  ///< C*, or degrees

  bool operator==(const ReferenceMarker&) const = default;
};

}  // namespace vexa

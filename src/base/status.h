// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace vexa {

/// The 16-bit result of an operation: 0 is success; every operation names its other values.
using Status = std::int16_t;

inline constexpr Status kSuccess = 0;

}  // namespace vexa

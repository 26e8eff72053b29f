// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/flag.h"

namespace vexa {

inline constexpr std::size_t kPixelsPerLine = 512;
inline constexpr std::size_t kBytesPerLine = 2 * kPixelsPerLine;
inline constexpr std::size_t kMaxLines = 16;

/// One line of the detector as the controller sends it: pixel i (0..511) is the 12-bit value
/// byte 2i + 256 x (low 4 bits of byte 2i+1). Set complete once all its bytes are in.
struct LineBuffer {
  std::array<std::uint8_t, kBytesPerLine> bytes{};
  Flag complete;
};

using LineBuffers = std::array<LineBuffer, kMaxLines>;

}  // namespace vexa

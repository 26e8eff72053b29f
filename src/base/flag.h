// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace vexa {

/// A boolean kept as a 16-bit word, as the instrument's records and files have it:
/// true is -1, false is 0.
class Flag {
 public:
  constexpr Flag(bool on = false) : word_(on ? std::int16_t{-1} : std::int16_t{0}) {}
  constexpr operator bool() const { return word_ != 0; }
  [[nodiscard]] constexpr std::int16_t Word() const { return word_; }

 private:
  std::int16_t word_;
};

}  // namespace vexa

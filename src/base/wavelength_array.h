// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <span>

namespace vexa {

/// Doubles indexed by the whole wavelength in nanometres, First..Last inclusive; zero when made.
template <int First, int Last>
class WavelengthArray {
 public:
  static constexpr int kFirstNm = First;
  static constexpr int kLastNm = Last;
  static constexpr std::size_t kCount =
      static_cast<std::size_t>(Last) - static_cast<std::size_t>(First) + 1;

  [[nodiscard]] static constexpr bool Contains(int nm) { return nm >= First && nm <= Last; }

  double& operator[](int nm) { return values_[Index(nm)]; }
  const double& operator[](int nm) const { return values_[Index(nm)]; }

  /// All values in ascending wavelength.
  [[nodiscard]] std::span<double, kCount> Values() { return values_; }
  [[nodiscard]] std::span<const double, kCount> Values() const { return values_; }

  /// Nothing was ever put in, or nothing but zeros.
  [[nodiscard]] bool IsEmpty() const { return *this == WavelengthArray(); }

  bool operator==(const WavelengthArray&) const = default;

 private:
  static constexpr std::size_t Index(int nm) {
    assert(Contains(nm));
    return static_cast<std::size_t>(nm - First);
  }

  std::array<double, kCount> values_{};
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <array>
#include <cstdint>
#include <span>

#include "base/flag.h"

namespace vexa {

/// A point of a spectrum: where an interference extremum stands.
struct ExtremumPoint {
  double wavelengthNm = 0.0;  ///< 440..840, in steps of 0.5
  double reflectance = 0.0;   ///< percent

  bool operator==(const ExtremumPoint&) const = default;
};

struct Extremum {
  ExtremumPoint point;
  Flag maximum;  ///< a minimum when false
};

/// The extrema of a spectrum in ascending wavelength.
struct ExtremumList {
  static constexpr std::int16_t kLimit = 50;  ///< a search that reaches it has failed

  std::int16_t count = 0;
  std::array<Extremum, kLimit + 1> entries{};

  [[nodiscard]] std::span<const Extremum> Found() const {
    return std::span(entries).first(static_cast<std::size_t>(count > 0 ? count : 0));
  }
};

/// The rows of the wavelength list, one an extremum: its number, "P" for a maximum or "V" for a
/// minimum, wavelength in whole nanometres and reflectance in percent, with tabs between.
[[nodiscard]] QStringList ExtremumRows(const ExtremumList& list);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <cstdint>

namespace vexa {

/// Where an index or a reflectance spectrum comes from.
struct DispersionKind {
  static constexpr std::int16_t kFixedValue = 0;
  static constexpr std::int16_t kSchott = 1;
  static constexpr std::int16_t kSellmeier = 2;
  static constexpr std::int16_t kIndexFile = 3;
  static constexpr std::int16_t kSubstrate = 4;  ///< the measured reflectance of the bare substrate
};

/// Selects the source of a spectrum and carries the parameters of every source. The kind is kept as
/// a number because files may hold any.
struct DispersionSetting {
  std::int16_t kind = DispersionKind::kSellmeier;
  double fixedValue = 0.0;  ///< an index, or a reflectance in percent
  /// A0..A5, wavelength in micrometres.
  std::array<double, 6> schott{2.2702566,      -0.0091988101, 0.011609706,
                               -7.6123911E-05, 2.8558727E-05, -1.2566486E-06};
  /// A1, A2, A3, then the pole terms B1, B2, B3 in square micrometres.
  std::array<double, 6> sellmeier{1.1515019,   0.118583612,  1.26301359,
                                  0.010598413, -0.011822519, 129.617662};
  QString indexFileName;  ///< a *.ind or *.ref file
  QString dataFileName;   ///< the data file of the bare substrate

  bool operator==(const DispersionSetting&) const = default;
};

/// The built-in setting of the reference sample; its fixed value is a reflectance in percent.
[[nodiscard]] inline DispersionSetting DefaultReferenceSetting() {
  return {.fixedValue = 4.0, .indexFileName = {}, .dataFileName = {}};
}

/// The built-in setting of the coat; its fixed value is an index.
[[nodiscard]] inline DispersionSetting DefaultCoatSetting() {
  return {.fixedValue = 1.2, .indexFileName = {}, .dataFileName = {}};
}

}  // namespace vexa

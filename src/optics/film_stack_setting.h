// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "base/spectrum.h"

namespace vexa {

inline constexpr double kMostFilmNm = 60000.0;

/// Where the thickness of a layer is looked for; a layer whose limits are equal is known.
struct ThicknessRange {
  double fromNm = 50.0;
  double toNm = kMostFilmNm;

  [[nodiscard]] bool IsFixed() const { return fromNm == toNm; }
  bool operator==(const ThicknessRange&) const = default;
};

struct FilmFitOptions {
  int fromNm = ReflectanceSpectrum::kFirstNm;  ///< wavelengths used
  int toNm = ReflectanceSpectrum::kLastNm;
  bool scaleFree = true;     ///< a factor of 0.5 to 1.6 on the model: an error of the reference
  bool offsetFree = false;   ///< a constant background
  bool indexFree = false;    ///< a factor on the index of the first layer
  double bandwidthNm = 1.0;  ///< full width at half maximum of the instrument's slit
  // What the interval takes into it besides the noise, as half widths at its confidence.
  double wavelengthUncertaintyNm = 0.1;
  double indexUncertainty = 0.0;  ///< relative
  double confidence = 0.95;       ///< of the interval, between 0 and 1

  bool operator==(const FilmFitOptions&) const = default;
};

struct FilmLayerSetting {
  QString material;  ///< as ReadMaterial takes it
  ThicknessRange range;

  bool operator==(const FilmLayerSetting&) const = default;
};

/// A stack and how it is fitted, as a user sets it.
struct FilmStackSetting {
  QString substrate;
  std::vector<FilmLayerSetting> layers;  ///< the one next to the air first
  FilmFitOptions options;

  bool operator==(const FilmStackSetting&) const = default;
};

/// The limits of the layers.
[[nodiscard]] std::vector<ThicknessRange> LayerRanges(const FilmStackSetting& setting);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <variant>
#include <vector>

#include "base/replace_file.h"
#include "optics/film_fit.h"

namespace vexa {

struct FilmLayerSetting {
  QString material;  ///< as ReadMaterial takes it
  ThicknessRange range;

  bool operator==(const FilmLayerSetting&) const = default;
};

/// A stack and how it is fitted, as a user sets it and a *.flm file keeps it.
struct FilmStackSetting {
  QString substrate;
  std::vector<FilmLayerSetting> layers;  ///< the one next to the air first
  FilmFitOptions options;

  bool operator==(const FilmStackSetting&) const = default;
};

enum class FilmStackFileFault {
  kUnreadable,  ///< the file is not there or cannot be read
  kNoStack,     ///< it is no JSON of this kind
  kVersion,     ///< it was written by a later version
  kValue,       ///< a value is missing, of another type, or what FitFilm refuses
};

/// Reads a *.flm file: JSON in UTF-8, units in the names. The materials are kept as texts; what
/// they name is not read. Options that are missing have their built-in values.
[[nodiscard]] std::variant<FilmStackSetting, FilmStackFileFault> ReadFilmStackFile(
    const QString& path);

/// Writes the file in the place of the old one; false, and the old one as it was, when that fails.
WriteResult WriteFilmStackFile(const QString& path, const FilmStackSetting& setting);

/// The limits of the layers.
[[nodiscard]] std::vector<ThicknessRange> LayerRanges(const FilmStackSetting& setting);

/// What a setting asks, with its materials read; a relative file name counts from `directory`.
struct FilmMaterialFault {
  MaterialFault fault;
  QString material;   ///< the text that gives none
  std::size_t place;  ///< of the layer, from 0; the number of layers for the substrate
};
[[nodiscard]] std::variant<FilmFitRequest, FilmMaterialFault> ReadFilmFitRequest(
    const FilmStackSetting& setting, const QString& directory);

/// What to tell the user.
[[nodiscard]] QString FilmStackFileFaultText(FilmStackFileFault fault);

}  // namespace vexa

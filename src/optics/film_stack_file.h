// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>
#include <variant>

#include "base/replace_file.h"
#include "optics/film_fit.h"

namespace vexa {

enum class FilmStackFileFault {
  kUnreadable,  ///< the file is not there or cannot be read
  kNoStack,     ///< it is no JSON of this kind
  kVersion,     ///< it was written by a later version
  kValue,       ///< a value is missing, of another type, or what FitFilm refuses
};

/// A setting as its file has it, less what tells the file's kind: {"substrate", "layers":
/// [{"material", "thicknessFromNm", "thicknessToNm"}], "fit": the options}.
[[nodiscard]] QJsonObject FilmStackJson(const FilmStackSetting& setting);

/// The setting of such an object; nothing when a value is missing, of another type, or what FitFilm
/// refuses. Options that are missing have their built-in values.
[[nodiscard]] std::optional<FilmStackSetting> FilmStackOf(const QJsonObject& object);

/// Reads a *.flm file: JSON in UTF-8, units in the names. The materials are kept as texts; what
/// they name is not read.
[[nodiscard]] std::variant<FilmStackSetting, FilmStackFileFault> ReadFilmStackFile(
    const QString& path);

/// Writes the file in the place of the old one; false, and the old one as it was, when that fails.
WriteResult WriteFilmStackFile(const QString& path, const FilmStackSetting& setting);

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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vexa {

/// `records.json` of the program directory:
/// {"station": "line 1", "shared": "service=quality"}; both may be missing.
struct RecordSettings {
  QString station;  ///< the name of this computer when the file names none
  QString shared;   ///< the shared store as PostgreSQL's own tools take it; empty: there is none
};

/// The settings of the directory; nothing when the file is there but not readable as such.
[[nodiscard]] std::optional<RecordSettings> ReadRecordSettings(const QString& directory);

/// Without such a file: the name of this computer, and no shared store.
[[nodiscard]] RecordSettings UsualRecordSettings();

/// The path of `records.json`.
[[nodiscard]] QString RecordSettingsPath(const QString& directory);

/// The path of the record store of a program directory.
[[nodiscard]] QString RecordStorePath(const QString& directory);

}  // namespace vexa

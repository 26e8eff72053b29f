// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include "base/file_fault.h"
#include "base/language.h"
#include "base/message.h"
#include "base/replace_file.h"

namespace vexa {

/// The settings of the program itself, which no measurement depends on.
struct ProgramSettings {
  Language language = Language::kJapanese;
  bool showCie = false;             ///< the CIE colour stands beside the instrument's own
  QString filmStack = {};           ///< the file of the film stack (*.flm); empty for none
  bool fitEachMeasurement = false;  ///< the film fit follows every measurement
  QStringList recentFiles = {};     ///< whole paths, the last one first

  bool operator==(const ProgramSettings&) const = default;
};

/// Where they are kept: program.json in the program directory.
[[nodiscard]] QString ProgramSettingsPath(const QString& programDirectory);

/// The settings in the text of such a file, a JSON object in UTF-8; what it does not name has its
/// usual value, and names of a later version are passed over.
ReadResult<ProgramSettings> ParseProgramSettings(const QByteArray& json);

/// Reads the file; kMissing is the fault before it was first written.
ReadResult<ProgramSettings> ReadProgramSettings(const QString& programDirectory);

/// What a start of the program finds: the settings, and what has to be told of the file. A file
/// whose text is none of its kind is given the name of NAME.bad, so that it is told once.
struct ProgramStart {
  ProgramSettings settings = {};
  QList<MessageCall> notices = {};
};
[[nodiscard]] ProgramStart StartProgram(const QString& programDirectory);

/// Writes the file; one that cannot be read is kept beside it first.
WriteResult WriteProgramSettings(const ProgramSettings& settings, const QString& programDirectory);

}  // namespace vexa

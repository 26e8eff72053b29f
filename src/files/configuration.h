// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "base/known_files.h"
#include "base/message.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "measurement/vexatype.h"
#include "standards/standard_file.h"

namespace vexa {

/// The built-in defaults of the start-up file and the environment file, and "vexa.env" as the name
/// of the latter.
void SetEnvDefaults(Settings& settings);

/// Where a named settings file is: where it is named, else under its bare name in the program
/// directory. The first where it is nowhere.
[[nodiscard]] QString FindSettingsFile(const QString& programDirectory, const QString& name);

/// An environment file with the standard file that it names.
struct Environment {
  QString path;
  KnownFiles knownFiles;
  std::optional<EnvironmentContent> content;  ///< nothing when it cannot be read
  std::optional<StandardContents> standards;  ///< likewise, or when it names none
  QList<MessageCall> notices;                 ///< to be told one after another
};

[[nodiscard]] Environment ReadEnvironment(const QString& path, const QString& programDirectory);

/// Puts the environment in force under its name; one that cannot be read becomes the defaults under
/// theirs. True when it was read.
bool ApplyEnvironment(const Environment& environment, Settings& settings);

/// What the files of a program directory say at the start.
struct Configuration {
  KnownFiles knownFiles;
  std::optional<StartupContent> startup;
  std::optional<Environment> environment;  ///< nothing when it was not looked for
  std::optional<std::int16_t> calibrationShiftNm;
  QList<MessageCall> notices;
};

/// Whether `vexa.env` of the program directory counts when no start-up file names an environment.
enum class UnnamedEnvironment { kIgnored, kRead };

/// Reads start-up file, environment file, standard file and calibration file. A file that is there
/// but cannot be read is told, and so is one that is named but missing.
[[nodiscard]] Configuration ReadConfiguration(
    const QString& programDirectory, UnnamedEnvironment unnamed = UnnamedEnvironment::kIgnored);

/// Puts the configuration in force, defaults in the place of what could not be read.
void ApplyConfiguration(const Configuration& configuration, Settings& settings);

/// Both, for the program directory of the state; what is to be told.
[[nodiscard]] QList<MessageCall> LoadConfiguration(
    Settings& settings, UnnamedEnvironment unnamed = UnnamedEnvironment::kIgnored);

}  // namespace vexa

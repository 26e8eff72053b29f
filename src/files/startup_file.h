// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "base/file_fault.h"
#include "base/replace_file.h"
#include "measurement/vexatype.h"

namespace vexa {

/// What the start-up file `vexa.int` holds.
struct StartupContent {
  QString envFileName;
  std::int16_t controllerPort = 0;
  std::array<std::int16_t, 5> linePositions{};
  std::int16_t detectorStartNm = 0;
};

/// Its path in a program directory.
[[nodiscard]] QString StartupPath(const QString& programDirectory);

/// Reads a start-up file.
ReadResult<StartupContent> ReadStartupFile(const QString& path);

/// Puts the content in force.
void ApplyStartup(const StartupContent& content, Settings& settings);

/// The name of an environment file in the start-up file: its bare name when it lies in the program
/// directory, so that the directory may be moved and called anything.
[[nodiscard]] QString NameForStartup(const Settings& settings, const QString& envFileName);

/// Writes that of the program directory. One that cannot be read is kept beside it as
/// `vexa.int.bad`.
WriteResult WriteStartupFile(const Settings& settings);

}  // namespace vexa

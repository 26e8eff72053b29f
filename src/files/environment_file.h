// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <array>
#include <variant>

#include "base/file_fault.h"
#include "base/message.h"
#include "base/replace_file.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The place in the state of one line of an environment file.
using EnvironmentPlace = std::variant<std::monostate, std::int16_t*, double*, Flag*, QString*>;

/// The value of one line; nothing where a file does not hold it.
using EnvironmentValue = std::variant<std::monostate, std::int16_t, double, Flag, QString>;

inline constexpr std::size_t kEnvironmentLines = 57;

/// Something for each line by its number; 0 and 1 (the header) have nothing.
template <typename Line>
using EnvironmentTable = std::array<Line, kEnvironmentLines + 1>;

/// The places of all lines.
[[nodiscard]] EnvironmentTable<EnvironmentPlace> EnvironmentLines(Settings& settings);

/// What an environment file holds, by the line numbers of the current layout.
struct EnvironmentContent {
  double version = 0.0;
  EnvironmentTable<EnvironmentValue> lines;
};

/// True for a file whose header says that it is an environment file, or that ends in "env" (in any
/// case) and does not say that it is a data file.
[[nodiscard]] bool IsEnvironmentFile(const QString& path);

/// Reads an environment file of the current layout (version 2.99 and later) or of the older one
/// (from 1.0), which lacks some of the lines.
ReadResult<EnvironmentContent> ReadEnvFile(const QString& path);

/// Puts the content in force; settings that it lacks stay as they are.
void ApplyEnvironment(const EnvironmentContent& content, Settings& settings);

/// What to tell of an environment file that cannot be read: that it has another version, or that it
/// is missing, or anything else.
[[nodiscard]] MessageCall EnvironmentMessage(const QString& path, const FileFault& fault);

/// What to tell of one that was read: a value that the program does not know.
[[nodiscard]] QList<MessageCall> EnvironmentDoubts(const QString& path,
                                                   const EnvironmentContent& content);

/// Writes the 57 lines. A file of that name that is no readable environment file is kept beside it
/// as NAME.bad.
WriteResult WriteEnvFile(const QString& path, const Settings& settings);

}  // namespace vexa

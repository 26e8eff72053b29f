// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <variant>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// The place in the state of one line of an environment file.
using EnvironmentValue = std::variant<std::monostate, std::int16_t*, double*, Flag*, QString*>;

inline constexpr std::size_t kEnvironmentLines = 57;

/// The places of all lines by their number; 0 and 1 (the header) have none.
[[nodiscard]] std::array<EnvironmentValue, kEnvironmentLines + 1> EnvironmentLines(VEXATYPE& state);

/// The outcome of reading an environment file.
struct EnvironmentRead {
  bool read = false;
  double version = 0.0;  ///< 0 when the header is none
};

/// Reads an environment file of the current layout (version 2.99 and later) or of the older one
/// (from 1.0), in which some settings are missing and stay as they are. A version below 1.0 is
/// shown as a message. After any failure what was read before it stays, and the caller sets the
/// defaults.
[[nodiscard]] EnvironmentRead ReadEnvFile(const QString& path, VEXATYPE& state,
                                          MessageService& messages);

/// Writes the 57 lines; true when written. A file of that name that is no readable environment file
/// is kept beside it as NAME.bad.
[[nodiscard]] bool WriteEnvFile(const QString& path, const VEXATYPE& state);

}  // namespace vexa

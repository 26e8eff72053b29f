// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <span>

#include "instrument/detector_line.h"

namespace vexa {

/// What the reply to a command says. A group "CHAR" switches to characters, taken as they are, a
/// group "DATA" (and the beginning) to bytes written as two upper-case hexadecimal digits; the
/// groups themselves are dropped. `body` is the reply without its terminator.
[[nodiscard]] QString ReplyText(std::span<const std::uint8_t> body);

/// Moves the lines of a data reply (4 header bytes, then 1024 bytes a line) into `lines` in order
/// and sets the complete flag of each one that is filled. True when the last line is filled
/// exactly; false when a partial line or none at all came, or more than `lines` can hold.
[[nodiscard]] bool FillLines(std::span<const std::uint8_t> body, LineBuffers& lines);

}  // namespace vexa

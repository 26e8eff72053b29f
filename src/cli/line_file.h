// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

#include "instrument/detector_line.h"

namespace vexa::cli {

/// The detector lines of a file of n x 1024 bytes, n = 1..16, all marked complete. Nothing, and a
/// complaint, when the file cannot be read or has another size.
[[nodiscard]] std::optional<LineBuffers> ReadLineFile(const QString& path);

}  // namespace vexa::cli

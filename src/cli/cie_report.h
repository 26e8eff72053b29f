// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "colour/cie_colour.h"

namespace vexa::cli {

/// One line of the readable table.
struct CieLine {
  int slot = 0;
  std::optional<CieColour> colour;
};

/// The CIE colours in aligned columns, under what they were computed for and the warning about the
/// range.
[[nodiscard]] QString CieText(const std::vector<CieLine>& lines, const ColourSettings& settings);

}  // namespace vexa::cli

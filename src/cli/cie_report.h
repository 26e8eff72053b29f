// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

#include "colour/cie_colour.h"

namespace vexa::cli {

/// The CIE colour of one slot and what it was computed for; null what could not be computed.
[[nodiscard]] QJsonObject CieJson(const std::optional<CieColour>& colour,
                                  const ColourSettings& settings);

/// One line of the readable table.
struct CieLine {
  int slot = 0;
  std::optional<CieColour> colour;
};

/// The CIE colours in aligned columns, under what they were computed for and the warning about the
/// range.
[[nodiscard]] QString CieText(const std::vector<CieLine>& lines, const ColourSettings& settings);

}  // namespace vexa::cli

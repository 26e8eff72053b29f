// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "measurement/vexatype.h"
#include "views/paper/page_table.h"

namespace vexa {

/// A file by its bare name, "-" for none: a report goes to others, whom the directories of this
/// computer do not concern.
[[nodiscard]] QString BareName(const QString& path);

/// What the valid slots were measured under, as a report says it: the text that all of them share,
/// else that each has its own. "-" where it is not known, as of slots that a file gave.
struct MeasuringConditions {
  QString sampling;   ///< sampling time and averaging
  QString reference;  ///< where the reflectance of the reference sample comes from

  bool operator==(const MeasuringConditions&) const = default;
};

[[nodiscard]] MeasuringConditions CommonConditions(const VEXATYPE& state);

/// Those of each slot; nothing where all share them.
[[nodiscard]] std::optional<PageTable> ConditionsTable(const VEXATYPE& state);

}  // namespace vexa

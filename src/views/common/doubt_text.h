// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "optics/thickness_doubts.h"

namespace vexa {

/// All doubts about a thickness, a line each; empty without any.
[[nodiscard]] QString DoubtTexts(const std::vector<ThicknessDoubt>& doubts);
/// Likewise from the names of the doubts, as a record keeps them.
[[nodiscard]] QString DoubtTexts(const QStringList& names);

/// What stands before a thickness in a table: "▲ " when there are doubts about it, else nothing.
[[nodiscard]] QString DoubtMarkText(bool doubtful);

}  // namespace vexa

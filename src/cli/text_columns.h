// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

namespace vexa::cli {

/// Rows of cells as lines in aligned columns, two blanks apart. Full-width letters count as two
/// places, what is no printable letter is a blank; a line ends with its last cell that is not
/// empty.
[[nodiscard]] QString TextColumns(QList<QStringList> rows);

}  // namespace vexa::cli

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/sql_session.h"

namespace vexa {

/// Marks the file as a record store: "VXRC".
inline constexpr int kStoreApplicationId = 0x56585243;

/// Makes the tables of a new store, or brings those of an older program up to date. kForeign for a
/// database of another kind or of a newer program; it is left as it was.
[[nodiscard]] StoreFault BringUpToDate(const SqlSession& session);

/// kNone when the store has the tables of this program.
[[nodiscard]] StoreFault CheckVersion(const SqlSession& session);

/// Puts one row in; binds number, document, numbers and hash.
[[nodiscard]] QString InsertStatement();

/// An expression of a row: whether its columns are what its document says.
[[nodiscard]] QString RepeatsDocument();

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vexa {

/// The options of a connection that is given as PostgreSQL's own tools take it: the name of a
/// service, a URI ("postgresql://host/name") or words "key=value". Nothing for a text that is none
/// of these, and for one with a password: passwords stay where PostgreSQL keeps them.
[[nodiscard]] std::optional<QString> PostgresOptions(const QString& connection);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vexa {

/// The version in the header line of a file of the given kind ("DAT", "ADD", "STA", "ENV"): the
/// number after the first "VER" of a line that names the model, this instrument's range ("440") or
/// "WINDOWS", and the kind. 0 when the line is no such header; letters count in any case.
[[nodiscard]] double ReadHeaderVersion(const QString& headerLine, QStringView kindWord);

}  // namespace vexa

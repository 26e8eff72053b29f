// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFont>

namespace vexa {

/// Makes the texts of a written PDF file those that were painted, for searching and copying. Qt
/// names a glyph after the lowest code point that it stands for, and in many fonts an ideograph
/// shares its glyph with a radical (U+2E80..U+2FDF) of the same look: those names become the
/// ideographs'. No length changes, and files without such names stay as they are.
void NameIdeographs(QByteArray& pdf, const QFont& font);

}  // namespace vexa

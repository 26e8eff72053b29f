// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFont>

namespace vexa {

/// Makes the texts of a PDF file that was painted in the font those that were painted, for
/// searching and copying. Qt names a glyph after the lowest code point that it stands for: the
/// ideograph U+6B62 after the radical U+2F4C of the same look, U+FF5E after U+301C. A name that the
/// code page of the program's texts does not hold becomes the character of that code page with the
/// same glyph, where there is one. No length changes.
void NameCharacters(QByteArray& pdf, const QFont& font);

}  // namespace vexa

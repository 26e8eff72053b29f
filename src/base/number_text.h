// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace vexa {

/// A number as text after a format pattern, never depending on the locale.
///
/// A pattern is leading blanks, an integer part and an optional fraction of "0" (a digit always
/// shown) and "#" (shown when needed), and optionally "E+00" (an exponent with its sign, at least
/// as many digits as zeros): "##0.0##", "0.000000", "0.00000000E+00". The value is taken at 15
/// significant decimal digits and rounded half away from zero; a result of zero has no sign.
/// A value that is not finite gives "-".
[[nodiscard]] QString FormatNumber(double value, QStringView pattern);

/// The number at up to 15 significant digits without trailing zeros, with a blank in the place of
/// a plus sign: 440 is " 440", -0.5 is "-0.5", 7.6E-05 is " 7.6E-05". An exponent is written, with
/// its sign and two digits or more, below 1E-04 and from 1E+15. Not finite gives " 0".
[[nodiscard]] QString SignedText(double value);

/// The number that a text begins with: leading blanks are skipped, and what cannot continue a
/// number ends it; "e" counts as "E". 0 when there is none; nothing when it is beyond a double's
/// range.
[[nodiscard]] std::optional<double> LeadingNumber(QStringView text);

/// The number that the whole text is, blanks around it apart; nothing for any other text.
[[nodiscard]] std::optional<double> ParseNumber(QStringView text);

}  // namespace vexa

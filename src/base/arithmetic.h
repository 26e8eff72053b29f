// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

namespace vexa {

/// An operation without a finite result. A computation catches it once and turns it into its
/// status.
class ArithmeticFault : public std::domain_error {
 public:
  using std::domain_error::domain_error;
};

/// The quotient; throws ArithmeticFault on a zero divisor or a result that is not finite.
[[nodiscard]] double Divide(double dividend, double divisor);

/// The non-negative root; throws ArithmeticFault on a negative radicand or one that is not finite.
[[nodiscard]] double SquareRoot(double radicand);

/// `base` to the power of `exponent`; throws ArithmeticFault where that is no finite real number.
[[nodiscard]] double Power(double base, double exponent);

}  // namespace vexa

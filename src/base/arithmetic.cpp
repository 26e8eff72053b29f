// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/arithmetic.h"

#include <cmath>

namespace vexa {
namespace {

double Finite(double value, const char* operation) {
  if (!std::isfinite(value)) {
    throw ArithmeticFault(operation);
  }
  return value;
}

}  // namespace

double Divide(double dividend, double divisor) {
  return Finite(dividend / divisor, "division");
}

double SquareRoot(double radicand) {
  return Finite(std::sqrt(radicand), "square root");
}

double Power(double base, double exponent) {
  return Finite(std::pow(base, exponent), "power");
}

}  // namespace vexa

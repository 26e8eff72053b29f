// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vexa::statistics {

/// The value that a share p of the standard normal distribution lies below; 0 < p < 1.
[[nodiscard]] double NormalQuantile(double p);
/// Likewise of Student's distribution with `df` degrees of freedom, df > 0.
[[nodiscard]] double StudentQuantile(double p, double df);
/// Likewise of the chi-square distribution; df need not be whole.
[[nodiscard]] double ChiSquareQuantile(double p, double df);

/// The share of the standard normal distribution below z, and above it.
[[nodiscard]] double NormalBelow(double z);
[[nodiscard]] double NormalAbove(double z);
/// The share of the F distribution above f >= 0.
[[nodiscard]] double FAbove(double f, double numeratorDf, double denominatorDf);

}  // namespace vexa::statistics

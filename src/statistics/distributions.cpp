// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/distributions.h"

#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>

#include <cmath>

namespace vexa::statistics {
namespace {

// GSL ends the program at a numerical fault unless it is told not to.
void KeepRunning() {
  static const auto before = gsl_set_error_handler_off();
  static_cast<void>(before);
}

// From here on GSL's searches and series lose their way now and then (2.7 at some 40,000 degrees of
// freedom for chi-square, 4 million for F). The cube roots of Wilson and Hilferty (PNAS 17, 1931)
// are then within 5E-8 of a quantile at 0.025 and 0.975, 3E-6 at 1E-6, and within 5E-7 in a share.
constexpr double kManyDf = 1e4;

// Variance of the cube root of chi-square / df; its mean is 1 less this.
double CubeRootVariance(double df) {
  return 2.0 / (9.0 * df);
}

}  // namespace

double NormalQuantile(double p) {
  return gsl_cdf_ugaussian_Pinv(p);
}

double StudentQuantile(double p, double df) {
  KeepRunning();
  return gsl_cdf_tdist_Pinv(p, df);
}

double ChiSquareQuantile(double p, double df) {
  KeepRunning();
  if (df > kManyDf) {
    const double variance = CubeRootVariance(df);
    return df * std::pow(1.0 - variance + NormalQuantile(p) * std::sqrt(variance), 3.0);
  }
  return gsl_cdf_chisq_Pinv(p, df);
}

double NormalBelow(double z) {
  return gsl_cdf_ugaussian_P(z);
}

double NormalAbove(double z) {
  return gsl_cdf_ugaussian_Q(z);
}

double FAbove(double f, double numeratorDf, double denominatorDf) {
  KeepRunning();
  if (numeratorDf > kManyDf && denominatorDf > kManyDf) {
    const double ofNumerator = CubeRootVariance(numeratorDf);
    const double ofDenominator = CubeRootVariance(denominatorDf);
    const double root = std::cbrt(f);
    return NormalAbove(((1.0 - ofDenominator) * root - (1.0 - ofNumerator)) /
                       std::sqrt(ofDenominator * root * root + ofNumerator));
  }
  return gsl_cdf_fdist_Q(f, numeratorDf, denominatorDf);
}

}  // namespace vexa::statistics

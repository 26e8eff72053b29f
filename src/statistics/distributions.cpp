// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/distributions.h"

#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>

namespace vexa::statistics {
namespace {

// GSL ends the program at a numerical fault unless it is told not to.
void KeepRunning() {
  static const auto before = gsl_set_error_handler_off();
  static_cast<void>(before);
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
  return gsl_cdf_fdist_Q(f, numeratorDf, denominatorDf);
}

}  // namespace vexa::statistics

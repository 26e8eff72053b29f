// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/least_squares.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vexa {
namespace {

struct Observation {
  double y, x;
};

// NIST Statistical Reference Datasets, nonlinear regression (https://www.itl.nist.gov/div898/strd):
// data, both starts, certified values and their standard deviations.
struct Reference {
  const char* name;
  std::vector<Observation> data;
  /// Model and its derivatives by the parameters.
  double (*model)(std::span<const double> b, double x, std::span<double> slopes);
  std::vector<std::vector<double>> starts;
  std::vector<double> certified;
  std::vector<double> deviations;
  double sumOfSquares;
};

double Misra1a(std::span<const double> b, double x, std::span<double> slopes) {
  const double decay = std::exp(-b[1] * x);
  if (!slopes.empty()) {
    slopes[0] = 1.0 - decay;
    slopes[1] = b[0] * x * decay;
  }
  return b[0] * (1.0 - decay);
}

double Mgh09(std::span<const double> b, double x, std::span<double> slopes) {
  const double top = x * x + x * b[1];
  const double bottom = x * x + x * b[2] + b[3];
  if (!slopes.empty()) {
    slopes[0] = top / bottom;
    slopes[1] = b[0] * x / bottom;
    slopes[2] = -b[0] * top * x / (bottom * bottom);
    slopes[3] = -b[0] * top / (bottom * bottom);
  }
  return b[0] * top / bottom;
}

LeastSquaresProblem ProblemOf(const Reference& reference) {
  return {reference.data.size(), [&](auto b, auto residuals, auto jacobian) {
            for (std::size_t i = 0; i < residuals.size(); ++i) {
              const auto [y, x] = reference.data[i];
              const auto row =
                  jacobian.empty() ? std::span<double>() : jacobian.subspan(i * b.size(), b.size());
              residuals[i] = reference.model(b, x, row) - y;
            }
            return true;
          }};
}

TEST(LeastSquares, ReachesTheCertifiedValues) {
  const Reference references[] = {
      {"Misra1a",
       {{10.07, 77.6},
        {14.73, 114.9},
        {17.94, 141.1},
        {23.93, 190.8},
        {29.61, 239.9},
        {35.18, 289.0},
        {40.02, 332.8},
        {44.82, 378.4},
        {50.76, 434.8},
        {55.05, 477.3},
        {61.01, 536.8},
        {66.40, 593.1},
        {75.47, 689.1},
        {81.78, 760.0}},
       Misra1a,
       {{500.0, 0.0001}, {250.0, 0.0005}},
       {2.3894212918E+02, 5.5015643181E-04},
       {2.7070075241E+00, 7.2668688436E-06},
       1.2455138894E-01},
      {"MGH09",
       {{1.957000E-01, 4.000000E+00},
        {1.947000E-01, 2.000000E+00},
        {1.735000E-01, 1.000000E+00},
        {1.600000E-01, 5.000000E-01},
        {8.440000E-02, 2.500000E-01},
        {6.270000E-02, 1.670000E-01},
        {4.560000E-02, 1.250000E-01},
        {3.420000E-02, 1.000000E-01},
        {3.230000E-02, 8.330000E-02},
        {2.350000E-02, 7.140000E-02},
        {2.460000E-02, 6.250000E-02}},
       Mgh09,
       {{25.0, 39.0, 41.5, 39.0}, {0.25, 0.39, 0.415, 0.39}},
       {1.9280693458E-01, 1.9128232873E-01, 1.2305650693E-01, 1.3606233068E-01},
       {1.1435312227E-02, 1.9633220911E-01, 8.0842031232E-02, 9.0025542308E-02},
       3.0750560385E-04},
  };
  for (const Reference& reference : references) {
    for (const auto& start : reference.starts) {
      const auto result = SolveLeastSquares(ProblemOf(reference), start, {.iterations = 1000});
      ASSERT_TRUE(result) << reference.name;
      const std::size_t count = start.size();
      const double variance =
          result->sumOfSquares / static_cast<double>(reference.data.size() - count);
      EXPECT_NEAR(result->sumOfSquares / reference.sumOfSquares, 1.0, 1e-8) << reference.name;
      for (std::size_t i = 0; i < count; ++i) {
        EXPECT_NEAR(result->parameters[i] / reference.certified[i], 1.0, 5e-7)
            << reference.name << " from " << start[0] << ", b" << i + 1;
        EXPECT_NEAR(std::sqrt(variance * result->Covariance(i, i)) / reference.deviations[i], 1.0,
                    5e-7)
            << reference.name << " from " << start[0] << ", b" << i + 1;
      }
    }
  }
}

// The logarithm meets its value at 4 and has none below 0, where the first full step leads.
TEST(LeastSquares, TakesNoForbiddenStep) {
  const LeastSquaresProblem problem{2, [](auto b, auto residuals, auto jacobian) {
                                      if (b[0] < 0.0) {
                                        return false;
                                      }
                                      residuals[0] = std::log(b[0] + 1e-3) - std::log(4.001);
                                      residuals[1] = 0.0;
                                      if (!jacobian.empty()) {
                                        jacobian[0] = 1.0 / (b[0] + 1e-3);
                                        jacobian[1] = 0.0;
                                      }
                                      return true;
                                    }};
  const auto result = SolveLeastSquares(problem, std::vector<double>{100.0});
  ASSERT_TRUE(result);
  EXPECT_NEAR(result->parameters[0], 4.0, 1e-6);
  EXPECT_FALSE(SolveLeastSquares(problem, std::vector<double>{-1.0})) << "a forbidden start";
  EXPECT_FALSE(SolveLeastSquares(problem, std::vector<double>{1.0, 1.0, 1.0})) << "too few points";
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/reflectance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "measurement/reflectance_noise.h"
#include "support/spectra.h"

namespace vexa {
namespace {

RawSpectrum Counts(double value) {
  RawSpectrum counts;
  for (double& each : counts.Values()) {
    each = value;
  }
  return counts;
}

// Shot noise of 200 electrons a count and read noise of 1 count, as they make a reflectance of 1 %
// beside a reference of 4 % whose light grows from 100 to 2500 counts.
TEST(ReflectanceNoise, IsToldByTheFramesUpToAFactor) {
  std::mt19937_64 generator(3);
  std::normal_distribution<double> normal;
  const auto light = [](int nm) { return 100.0 + 6.0 * (nm - 440); };
  const auto variance = [](double counts) { return counts / 200.0 + 1.0; };
  const auto frame = [&](double part, double lines) {
    RawSpectrum counts;
    for (int nm = RawSpectrum::kFirstNm; nm <= RawSpectrum::kLastNm; ++nm) {
      const double mean = 50.0 + part * light(nm);
      counts[nm] = mean + std::sqrt(variance(mean) / lines) * normal(generator);
    }
    return counts;
  };
  VEXATYPE state;
  state.instrument.calibrationShiftNm = 0;
  state.referenceReflectance = test::Flat(4.0);
  state.background = frame(0.0, 1.0);
  state.reference = frame(1.0, 4.0);
  state.backgroundTaken.averagingCount = 1;
  state.referenceTaken.averagingCount = 4;
  SampleBasis basis{{}, state.referenceReflectance};
  basis.conditions.frame.averagingCount = 16;
  const ReflectanceSpectrum noise = ReflectanceNoise(state, frame(0.25, 16.0), basis);
  const auto truth = [&](int nm) {
    return std::sqrt(variance(50.0 + 0.25 * light(nm)) / 16.0 + variance(50.0 + light(nm)) / 64.0 +
                     0.5625 * variance(50.0)) /
           light(nm);
  };
  for (const int nm : {440, 500, 600, 840}) {
    EXPECT_NEAR(noise[nm] / noise[700], truth(nm) / truth(700), 0.15 * truth(nm) / truth(700))
        << nm;
  }
  state.reference = state.background;
  EXPECT_TRUE(ReflectanceNoise(state, state.background, {}).IsEmpty()) << "no light";
}

TEST(Reflectance, IsThePartOfTheReferencesLightAboveTheBackground) {
  struct Case {
    const char* name;
    double sample, background, reference, percent;
  };
  const Case cases[] = {
      {"half the light of the reference", 300, 100, 500, 2.0},
      {"more light than the reference", 900, 100, 500, 8.0},
      {"no light", 100, 100, 500, 0.0},
      {"darker than the background", 90, 100, 500, 0.0},
      {"reference as dark as the background", 300, 100, 100, 0.0},
      {"reference darker than the background", 300, 100, 50, 0.0},
      {"both darker: two signs cancel", 50, 100, 75, 8.0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ComputeReflectance(Counts(c.sample), Counts(c.background), Counts(c.reference), 4,
                                 test::Flat(4.0)),
              test::Flat(c.percent))
        << c.name;
  }
}

TEST(Reflectance, ShiftMovesTheFramesAndNotTheReferencesReflectance) {
  const ReflectanceSpectrum glass = test::SpectrumOf([](int nm) { return nm / 100.0; });
  const std::pair<int, int> cases[] = {{-1, 0}, {0, 0}, {4, 4}, {7, 7}, {8, 7}};
  for (const auto& [shiftNm, taken] : cases) {
    // Only one wavelength of each frame has a value of its own.
    RawSpectrum sample = Counts(200.0);
    RawSpectrum background = Counts(100.0);
    RawSpectrum reference = Counts(200.0);
    sample[500 + taken] = 150.0;
    background[600 + taken] = 150.0;
    sample[600 + taken] = 175.0;
    reference[840 + taken] = 300.0;
    ReflectanceSpectrum expected = glass;
    expected[500] = 2.5;
    expected[600] = 3.0;
    expected[840] = 4.2;
    EXPECT_EQ(ComputeReflectance(sample, background, reference, shiftNm, glass), expected)
        << shiftNm;
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/reflectance.h"

#include <gtest/gtest.h>

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

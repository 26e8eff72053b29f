// SPDX-License-Identifier: GPL-3.0-or-later
// Values over all illuminants and observers are compared by tests/scripts/cie_colour_test.py.
#include "colour/cie_colour.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "colour/chromaticity_diagram.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;
using test::SpectrumOf;

// The white points themselves are held against the published ones in colorimetry_test.cpp.
TEST(CieColour, APerfectReflectorIsTheWhite) {
  for (std::int16_t illuminant = 1; illuminant <= 4; ++illuminant) {
    for (const bool twoDegrees : {true, false}) {
      const auto white = CalcCieColour(Flat(100.0), {illuminant, twoDegrees});
      const auto published = WhitePointOf(illuminant, twoDegrees);
      ASSERT_TRUE(white && published);
      EXPECT_NEAR(white->x, published->x, 1e-12) << illuminant << twoDegrees;
      EXPECT_NEAR(white->y, published->y, 1e-12) << illuminant << twoDegrees;
      EXPECT_NEAR(white->Y, 100.0, 1e-12);
      EXPECT_NEAR(white->L, 100.0, 1e-12);
      EXPECT_NEAR(white->C, 0.0, 1e-12);
      EXPECT_TRUE(std::isnan(white->h)) << "white has no hue";
    }
  }
}

TEST(CieColour, PairsTheTablesWithTheirOwnWavelengths) {
  // Above 780 nm nothing has weight; x-bar and y-bar at 555 nm are 0.512050 and 1.
  ReflectanceSpectrum spectrum = SpectrumOf([](int nm) { return nm > 780 ? 100.0 : 0.0; });
  EXPECT_EQ(CalcCieColour(spectrum, {4, true})->X, 0.0);
  spectrum[555] = 100.0;
  const auto line = CalcCieColour(spectrum, {4, true});
  EXPECT_NEAR(line->x, 0.512050 / (0.512050 + 1.0 + 0.005750), 1e-6);
  EXPECT_EQ(line->spread, 0.0) << "the range below 440 nm is dark either way";
}

TEST(CieColour, TellsHowMuchHangsOnTheMissingRange) {
  EXPECT_NEAR(CalcCieColour(Flat(4.0), {})->spread, 0.0, 1e-12);
  const auto below = CalcCieColour(Flat(-1.0), {4, true});  // by noise
  EXPECT_NEAR(below->Y, -1.0, 1e-12);
  EXPECT_NEAR(below->b, 0.0, 1e-9) << "below 440 nm it goes on as it is";
  const auto slope = [](double perNm) {
    return CalcCieColour(SpectrumOf([perNm](int nm) { return 2.0 + perNm * (nm - 440); }),
                         {4, true})
        ->spread;
  };
  EXPECT_GT(slope(-0.02), 1.5 * slope(-0.01));
  // A line that would be far below 0 is taken for 0: steeper changes nothing any more.
  const auto foot = [](double perNm) {
    return CalcCieColour(
        SpectrumOf([perNm](int nm) { return nm > 460 ? 2.0 : perNm * (nm - 440) + 0.01; }),
        {4, true});
  };
  EXPECT_LT(foot(5.0)->spread, 0.2);
}

TEST(CieColour, WhatDoesNotExistIsNoNumber) {
  const auto black = CalcCieColour(Flat(0.0), {4, true});
  ASSERT_TRUE(black);
  EXPECT_EQ(black->L, 0.0);
  EXPECT_EQ(black->C, 0.0);
  EXPECT_TRUE(std::isnan(black->x) && std::isnan(black->y) && std::isnan(black->h));
  for (std::int16_t illuminant : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{5}}) {
    EXPECT_FALSE(CalcCieColour(Flat(4.0), {illuminant, true})) << illuminant;
  }
  for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity(), 1e308}) {
    EXPECT_FALSE(CalcCieColour(Flat(bad), {4, true})) << bad;
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colorimetry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <optional>

#include "base/arithmetic.h"
#include "colour/chromaticity_diagram.h"
#include "colour/colour_tables.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;
using test::SpectrumOf;

double Band(int nm, int from, int to, double inside, double outside) {
  return nm >= from && nm <= to ? inside : outside;
}

double Sum(const ColourTable& table) {
  return std::accumulate(table.begin(), table.end(), 0.0);
}

// Column sums of the CIE tables (observers: also printed below CIE 15:2004, Tables T.4 and T.5).
TEST(ColourTables, SumsAndSingleEntries) {
  const double illuminants[] = {9561.75, 7180.57, 7221.54, 7092.75};
  const double at560[] = {100.0, 102.80, 105.30, 100.0};
  for (int illuminant = 1; illuminant <= 4; ++illuminant) {
    EXPECT_NEAR(Sum(IlluminantTable(illuminant)), illuminants[illuminant - 1], 1e-9);
    EXPECT_EQ(IlluminantTable(illuminant)[36], at560[illuminant - 1]);
  }
  EXPECT_EQ(IlluminantTable(1)[80], 241.68);
  EXPECT_THROW((void)IlluminantTable(0), ArithmeticFault);
  EXPECT_THROW((void)IlluminantTable(5), ArithmeticFault);
  const ObserverTables& two = ObserverTable(true);
  EXPECT_NEAR(Sum(two.x), 21.371524, 1e-12);
  EXPECT_NEAR(Sum(two.y), 21.371327, 1e-12);
  EXPECT_NEAR(Sum(two.z), 21.371540, 1e-12);
  const ObserverTables& ten = ObserverTable(false);
  EXPECT_NEAR(Sum(ten.x), 23.329353, 1e-12);
  EXPECT_NEAR(Sum(ten.y), 23.332036, 1e-12);
  EXPECT_NEAR(Sum(ten.z), 23.334153, 1e-12);
}

// Chromaticities as published: CIE 15:2004, Table T.3; B: Wyszecki and Stiles. They are summed at
// 1 nm there, hence the last digit.
TEST(ColourTables, GiveThePublishedWhitePoints) {
  struct Case {
    int illuminant;
    bool twoDegrees;
    double x;
    double y;
  };
  const Case cases[] = {
      {1, true, 0.44758, 0.40745},  {2, true, 0.34842, 0.35161},  {3, true, 0.31006, 0.31616},
      {4, true, 0.31272, 0.32903},  {1, false, 0.45117, 0.40594}, {3, false, 0.31039, 0.31905},
      {4, false, 0.31381, 0.33098},
  };
  for (const Case& c : cases) {
    const auto white = WhitePointOf(c.illuminant, c.twoDegrees);
    ASSERT_TRUE(white);
    EXPECT_NEAR(white->x, c.x, 1.1e-5) << c.illuminant << c.twoDegrees;
    EXPECT_NEAR(white->y, c.y, 1.1e-5) << c.illuminant << c.twoDegrees;
  }
  EXPECT_FALSE(WhitePointOf(0, true));
}

// Expected values: the same formulas in a separate program of plain loops over the CIE tables with
// 40 decimal digits (Python, mpmath), printed with 16.
TEST(CalcColour, AgreesWithAnIndependentComputation) {
  struct Case {
    double (*reflectance)(int nm);
    ColourSettings settings;
    ColourResult expected;
  };
  const auto ramp = [](int nm) { return (nm - 440) / 4.0; };
  const auto green = [](int nm) { return Band(nm, 560, 620, 70.0, 5.0); };
  const auto fall = [](int nm) { return (840 - nm) / 5.0; };
  const auto middle = [](int nm) { return Band(nm, 500, 560, 60.0, 20.0); };
  const auto shortWave = [](int nm) { return nm < 520 ? 80.0 : 10.0; };
  const auto noBlue = [](int nm) { return nm <= 620 ? 0.0 : 30.0; };
  const auto dark = [](int nm) { return (nm - 440) / 400.0; };
  const Case cases[] = {
      // cube roots, the hue in each quadrant
      {ramp,
       {1, true},
       {74.86141162342109, 15.21600240901142, 38.73836995631173, 0.516748605339814,
        0.4195799635840735, 41.61956314262701, 68.55565011401378, 50.0, 48.05786482496765}},
      {green,
       {4, true},
       {67.58244679818882, -98.38543070586568, 57.64003648487511, 0.2281247270106415,
        0.624883112226543, 114.026605584646, 149.6356912056789, 14.88778054862843,
        37.40858438959521}},
      {fall,
       {2, true},
       {72.02388800710213, -8.766774203211505, -21.17109428855921, 0.2899560048254425,
        0.3138616222788551, 22.91444006091266, 247.5059604400743, 40.0, 43.69459059686009}},
      {middle,
       {3, true},
       {55.62394180912001, 9.363014973177852, -34.68602795968706, 0.2353836299670414,
        0.2194343264354131, 35.92751849221074, 285.1061685883498, 26.08478802992519,
        23.53968723746916}},
      {shortWave,
       {2, false},
       {39.95730515799801, 35.23376998120278, -63.89116921412936, 0.2345083547685937,
        0.1570465092460251, 72.96231938909849, 298.8752160075106, 23.96508728179551,
        11.2252599204137}},
      {ramp,
       {3, false},
       {71.43661688096526, 7.738625944809948, 37.83445113705527, 0.4099780301573648,
        0.3964990071993336, 38.61776824670101, 78.44021668609577, 50.0, 42.82585760375618}},
      // straight lines for all three: no blue at all, though X and Y are high; and all low
      {noBlue,
       {4, false},
       {109.0055016179818, 277.155990283925, 187.9409361554371, 0.6011773406313706,
        0.3988226593686294, 334.8689869684041, 34.14140234385643, 16.45885286783042,
        12.06760858838045}},
      {dark,
       {1, false},
       {4.27975173557021, 2.229285462319438, 4.337147689346257, 0.5210536854489211,
        0.4182562974487928, 4.876531938961373, 62.79692434795009, 0.5, 0.4737959830807614}},
  };
  const std::pair<const char*, double ColourResult::*> fields[] = {
      {"L", &ColourResult::L}, {"a", &ColourResult::a},   {"b", &ColourResult::b},
      {"x", &ColourResult::x}, {"y", &ColourResult::y},   {"C", &ColourResult::C},
      {"h", &ColourResult::h}, {"Rm", &ColourResult::Rm}, {"Y", &ColourResult::Y}};
  for (const Case& c : cases) {
    const ReflectanceSpectrum spectrum = SpectrumOf(c.reflectance);
    ColourResult result;
    EXPECT_TRUE(CalcColour(spectrum, c.settings, result)) << "case " << &c - cases;
    EXPECT_TRUE(AverageReflectance(spectrum, 440, 840, result.Rm));
    for (const auto& [name, field] : fields) {
      const double expected = c.expected.*field;
      EXPECT_NEAR(result.*field, expected, 1e-12 * std::abs(expected))
          << name << " of case " << &c - cases;
    }
  }
}

TEST(CalcColour, FlatHundredGivesYHundredAndLastTwoSamplesDoNotCount) {
  ReflectanceSpectrum spectrum = Flat(100.0);
  for (std::int16_t illuminant = 1; illuminant <= 4; ++illuminant) {
    EXPECT_EQ(Tristimulus(spectrum, {illuminant, true}).Y, 100.0);
    EXPECT_EQ(Tristimulus(spectrum, {illuminant, false}).Y, 100.0);
  }
  const TristimulusValues before = Tristimulus(spectrum, {4, true});
  spectrum[835] = 0.0;
  spectrum[840] = 1e300;
  const TristimulusValues after = Tristimulus(spectrum, {4, true});
  EXPECT_EQ(after.X, before.X);
  EXPECT_EQ(after.Y, before.Y);
  EXPECT_EQ(after.Z, before.Z);
}

TEST(CalcColour, AFaultLeavesWhatWasBeforeIt) {
  const ColourResult before{1, 2, 3, 4, 5, 6, 7, 8, 9};
  struct Case {
    const char* name;
    double reflectance;
    std::int16_t illuminant;
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const Case cases[] = {
      {"black: no chromaticity", 0.0, 4},  {"illuminant 0", 50.0, 0},
      {"illuminant 5", 50.0, 5},           {"illuminant -1", 50.0, -1},
      {"overflow of X + Y + Z", 1e308, 4}, {"infinite", infinity, 4},
      {"not a number", std::nan(""), 4},
  };
  for (const Case& c : cases) {
    const ReflectanceSpectrum spectrum = Flat(c.reflectance);
    ColourResult result = before;
    EXPECT_FALSE(CalcColour(spectrum, {c.illuminant, true}, result)) << c.name;
    EXPECT_EQ(result, before) << c.name;
  }

  // So little light that a* vanishes: the hue is the first value that cannot be had.
  ColourResult result = before;
  EXPECT_FALSE(CalcColour(Flat(1e-30), {4, true}, result));
  EXPECT_NEAR(result.x, 0.3127, 1e-4);
  EXPECT_NEAR(result.Y, 1e-30, 1e-42);
  EXPECT_EQ(result.a, 0.0);
  EXPECT_EQ(result.h, before.h);
  EXPECT_EQ(result.C, before.C);
  EXPECT_EQ(result.Rm, before.Rm);
}

TEST(AverageReflectance, InclusiveBoundsAndRefusals) {
  ReflectanceSpectrum ramp = SpectrumOf([](int nm) { return nm - 440.0; });
  struct Case {
    int from;
    int to;
    std::optional<double> mean;
  };
  const Case cases[] = {
      {440, 840, 200.0}, {500, 510, 65.0}, {840, 840, 400.0}, {440, 440, 0.0},
      {439, 840, {}},    {440, 841, {}},   {501, 500, {}},    {-32768, 32767, {}},
  };
  for (const Case& c : cases) {
    double rm = -1.0;
    EXPECT_EQ(AverageReflectance(ramp, c.from, c.to, rm), c.mean.has_value()) << c.from;
    EXPECT_EQ(rm, c.mean.value_or(-1.0)) << c.from;
  }
  ramp[500] = std::nan("");
  double rm = -1.0;
  EXPECT_FALSE(AverageReflectance(ramp, 440, 840, rm));
  EXPECT_EQ(rm, -1.0);
}

TEST(Log10, PowersOfTenAndFaults) {
  EXPECT_NEAR(Log10(1000.0), 3.0, 1e-15);
  EXPECT_NEAR(Log10(1e-300), -300.0, 1e-12);
  for (const double value : {0.0, -1.0, std::nan("")}) {
    EXPECT_THROW((void)Log10(value), ArithmeticFault);
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/detector.h"
#include "simulator/film_stack.h"
#include "simulator/lamp.h"

namespace vexa::simulator {
namespace {

IndexCurve Constant(std::complex<double> index) {
  return [index](double) { return index; };
}

TEST(Dispersion, GivesThePublishedIndices) {
  const struct {
    double (*index)(double);
    double wavelengthNm;
    double published;
    double tolerance;  // half of the last digit published, or the rounding of the Abbe number
  } cases[] = {
      {CrownGlassIndex, 587.5618, 1.51680, 5e-6},  // SCHOTT data sheet of N-BK7: d, F, C
      {CrownGlassIndex, 486.1327, 1.52238, 5e-6},    {CrownGlassIndex, 656.2725, 1.51432, 5e-6},
      {MagnesiumFluorideIndex, 589.3, 1.3777, 5e-5}, {ZirconiaIndex, 589.3, 2.1585, 5e-5},
      {LensPlasticIndex, 587.5618, 1.4985, 5e-4},    {HardCoatIndex, 587.5618, 1.602, 5e-4},
      {PrimerIndex, 587.5618, 1.540, 5e-4},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(c.index(c.wavelengthNm), c.published, c.tolerance) << c.wavelengthNm;
  }
}

TEST(FilmStack, AgreesWithTheClosedForms) {
  const double wavelengthNm = 600.0;
  const struct {
    const char* name;
    double film;
    double substrate;
    double wavesThick;
    double reflected;
  } cases[] = {
      {"no film", 1.0, 1.5, 0.0, 0.04},                        // ((1.5 - 1) / (1.5 + 1))^2
      {"quarter wave", 1.38, 1.52, 0.25, 0.012601},            // ((1.52 - 1.9044) / 3.4244)^2
      {"quarter wave, perfect", 1.5, 2.25, 0.25, 0.0},         // n1^2 = n0 ns
      {"quarter wave, high index", 2.0, 1.5, 0.25, 0.206612},  // ((1.5 - 4) / 5.5)^2
      {"half wave", 2.0, 1.5, 0.5, 0.04},                      // as if it were not there
      {"three quarter waves", 2.0, 1.5, 0.75, 0.206612},
  };
  for (const auto& c : cases) {
    const FilmStack stack{Constant(c.substrate),
                          {{Constant(c.film), c.wavesThick * wavelengthNm / c.film}}};
    EXPECT_NEAR(SplitPower(stack, wavelengthNm).reflected, c.reflected, 5e-7) << c.name;
  }
}

TEST(FilmStack, OrdersTheFilmsFromTheAirInwards) {
  // Two quarter waves: effective index ns (n1 / n2)^2, here 1.5 / 4 from the air and 6 reversed.
  const FilmLayer low{Constant(1.0), 150.0};
  const FilmLayer high{Constant(2.0), 75.0};
  EXPECT_NEAR(SplitPower({Constant(1.5), {low, high}}, 600.0).reflected, 0.206612, 5e-7);
  EXPECT_NEAR(SplitPower({Constant(1.5), {high, low}}, 600.0).reflected, 25.0 / 49.0, 5e-7);
}

TEST(FilmStack, KeepsTheEnergyUnlessAFilmAbsorbs) {
  for (double nm = 440.0; nm <= 840.0; nm += 50.0) {
    const FilmStack lossless{CrownGlassIndex,
                             {{MagnesiumFluorideIndex, 99.0}, {ZirconiaIndex, 133.0}}};
    const PowerShares kept = SplitPower(lossless, nm);
    EXPECT_NEAR(kept.reflected + kept.transmitted, 1.0, 1e-12) << nm;
    const PowerShares lost = SplitPower({Constant(1.5), {{Constant({2.0, -0.5}), 50.0}}}, nm);
    EXPECT_LT(lost.reflected + lost.transmitted, 0.95) << nm;
    EXPECT_GT(lost.transmitted, 0.0) << nm;
  }
}

TEST(Samples, ReflectWhatTheyAreMadeFor) {
  const struct {
    Sample sample;
    int fromNm, toNm;
    double least, most;  // percent that the curve must stay within
    double swing;        // percent between its ends that it must show
  } cases[] = {
      {Sample::Reference, 440, 840, 4.0, 4.0, 0.0},    {Sample::Glass, 440, 840, 4.1, 4.4, 0.1},
      {Sample::Mgf2, 440, 840, 1.2, 2.2, 0.5},         {Sample::Ar4, 450, 680, 0.0, 0.7, 0.1},
      {Sample::HardCoat1500, 440, 840, 3.5, 8.0, 2.0},  // (0.6 / 2.6 -+ 0.1 / 3.1)^2
      {Sample::HardCoat4000, 440, 840, 3.5, 8.0, 2.0}, {Sample::Mirror, 440, 840, 3.0, 25.0, 20.0},
      {Sample::Primed, 440, 840, 3.5, 8.0, 2.0},       {Sample::Thin150, 440, 840, 3.5, 8.0, 2.0},
      {Sample::BlueCut, 440, 840, 0.0, 25.0, 20.0},
  };
  for (const auto& c : cases) {
    double least = c.most;
    double most = c.least;
    for (int nm = c.fromNm; nm <= c.toNm; ++nm) {
      const double percent = TrueReflectancePercent(c.sample, nm);
      EXPECT_TRUE(percent >= c.least && percent <= c.most) << SampleName(c.sample).data() << nm;
      least = std::min(least, percent);
      most = std::max(most, percent);
    }
    EXPECT_GE(most - least, c.swing) << SampleName(c.sample).data();
  }
  // Bare glass at the d line: (0.51680 / 2.51680)^2.
  EXPECT_NEAR(TrueReflectancePercent(Sample::Glass, 587.5618), 4.2165, 5e-4);
}

TEST(Detector, PlacesThePixelsByTheCalibrationLines) {
  const std::pair<int, double> cases[] = {
      {511 - 138, 546.074}, {511 - 325, 696.543}, {511 - 378, 738.393},
      {511 - 409, 763.511}, {511 - 469, 811.531}, {511, 435.033},  // 138 x 0.804647 below
      {0, 845.145}};                                               // 42 x 0.800333 above
  for (const auto& [pixel, nm] : cases) {
    EXPECT_NEAR(PixelWavelengthNm(pixel), nm, 1e-3) << pixel;
  }
}

PixelCounts LightOf(Sample sample, double integrationMs) {
  PixelCounts light = MeanCounts(sample, {integrationMs, false, false});
  const PixelCounts dark = MeanCounts(sample, {integrationMs, true, false});
  std::ranges::transform(light, dark, light.begin(), std::minus<>());
  return light;
}

TEST(Detector, GivesTheReferenceAUsableSignalEverywhere) {
  const PixelCounts light = LightOf(Sample::Reference, 3000.0);
  const double peak = std::ranges::max(light);
  EXPECT_GE(peak, 550.0);
  EXPECT_LE(peak, 600.0);
  EXPECT_GE(std::ranges::min(light), peak / 6.0);
}

TEST(Detector, AnswersInProportionToTimeAndReflectance) {
  const PixelCounts once = LightOf(Sample::Reference, 1000.0);
  const PixelCounts thrice = LightOf(Sample::Reference, 3000.0);
  const PixelCounts mirror = LightOf(Sample::Mirror, 1000.0);
  for (std::size_t pixel = 0; pixel < once.size(); ++pixel) {
    const double nm = PixelWavelengthNm(static_cast<int>(pixel));
    EXPECT_NEAR(thrice[pixel], 3.0 * once[pixel], 1e-9);
    EXPECT_NEAR(mirror[pixel] / once[pixel], TrueReflectancePercent(Sample::Mirror, nm) / 4.0,
                1e-9);
  }
}

TEST(Detector, MirrorSaturatesOnlyWhenExposedLong) {
  const SensorLine atDefault = ReadOut(MeanCounts(Sample::Mirror, {3000.0, false, false}), nullptr);
  const SensorLine atLongest =
      ReadOut(MeanCounts(Sample::Mirror, {20000.0, false, false}), nullptr);
  EXPECT_LT(std::ranges::max(atDefault), 4095);
  EXPECT_EQ(std::ranges::max(atLongest), 4095);
  EXPECT_GT(std::ranges::count(atLongest, 4095), 100);
}

// The shares that LampPower states.
TEST(Lamp, GetsDarkerWithItsHoursMostOfAllInTheBlue) {
  for (const auto& [nm, left] : {std::pair{440.0, 0.855}, {550.0, 0.905}, {840.0, 0.958}}) {
    EXPECT_NEAR(LampPower(nm, 1000.0) / LampPower(nm), left, 5e-4) << nm;
    EXPECT_EQ(LampPower(nm, 0.0), LampPower(nm));
  }
}

TEST(Detector, RoomLightComesOnlyThroughTheOpenEyepiece) {
  const PixelCounts closed = MeanCounts(Sample::Glass, {3000.0, true, false});
  const PixelCounts open = MeanCounts(Sample::Glass, {3000.0, true, true});
  EXPECT_DOUBLE_EQ(std::ranges::max(closed), 78.0);  // 60 + 6 a second, alike on every pixel
  EXPECT_DOUBLE_EQ(std::ranges::min(closed), 78.0);
  EXPECT_NEAR(std::ranges::max(open), 108.0, 0.1);
}

TEST(Detector, NoiseIsRepeatableAndAsLargeAsItsElectrons) {
  PixelCounts mean{};
  mean.fill(2000.0);
  std::mt19937_64 first(7), same(7), other(8);
  const SensorLine line = ReadOut(mean, &first);
  EXPECT_EQ(line, ReadOut(mean, &same));
  EXPECT_NE(line, ReadOut(mean, &other));

  double squares = 0.0;
  for (const std::uint16_t counts : line) {
    squares += (counts - 2000.0) * (counts - 2000.0);
  }
  // 2000 / 200 + 1 and 1/12 of rounding; 512 draws know a variance within 6 % (one sigma).
  EXPECT_NEAR(squares / kPixels, 11.08, 3 * 0.06 * 11.08);
}

TEST(Detector, RoundsAndClips) {
  for (const auto& [mean, counts] :
       {std::pair{-3.0, 0}, {99.6, 100}, {4094.4, 4094}, {5000.0, 4095}}) {
    PixelCounts means{};
    means.fill(mean);
    EXPECT_EQ(ReadOut(means, nullptr)[0], counts);
  }
}

}  // namespace
}  // namespace vexa::simulator

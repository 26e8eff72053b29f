// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/films.h"

namespace vexa {
namespace {

using simulator::FilmLayer;
using test::MaterialOf;

std::complex<double> Metal(double nm) {
  return {0.9 + nm * 1e-4, -6.0 - nm * 1e-3};
}

std::complex<double> Absorber(double nm) {
  return {1.7, -2e4 / (nm * nm)};
}

double Primer(double nm) {
  return 1.515 + 5000.0 / (nm * nm);
}

FilmStack Of(const simulator::FilmStack& stack) {
  FilmStack result{MaterialOf(stack.substrate), {}};
  for (const FilmLayer& layer : stack.layers) {
    result.layers.push_back(MaterialOf(layer.index));
  }
  return result;
}

FilmState StateOf(const simulator::FilmStack& stack) {
  FilmState state;
  for (const FilmLayer& layer : stack.layers) {
    state.thicknessesNm.push_back(layer.thicknessNm);
  }
  return state;
}

ReflectanceSpectrum Reflect(const FilmStack& stack, const FilmState& state, double bandwidthNm) {
  ReflectanceSpectrum percent;
  FilmModel(stack, 440, 840, 1, bandwidthNm).Reflect(state, percent.Values());
  return percent;
}

double LargestDifference(const ReflectanceSpectrum& a, const ReflectanceSpectrum& b) {
  double largest = 0.0;
  for (int nm = 440; nm <= 840; ++nm) {
    largest = std::max(largest, std::abs(a[nm] - b[nm]));
  }
  return largest;
}

const simulator::FilmStack kStacks[] = {
    test::Coat(0.0),
    test::Coat(150.0),
    test::Coat(58000.0),
    {simulator::CrownGlassIndex, {{Absorber, 230.0}}},
    {Metal, {{simulator::ZirconiaIndex, 900.0}}},
    {simulator::LensPlasticIndex, {{simulator::HardCoatIndex, 3000.0}, {Primer, 700.0}}},
    {simulator::CrownGlassIndex,
     {{simulator::MagnesiumFluorideIndex, 95.0},
      {simulator::ZirconiaIndex, 138.0},
      {Absorber, 30.0},
      {simulator::ZirconiaIndex, 16.0}}},
};

TEST(FilmModel, AgreesWithTheCharacteristicMatrices) {
  for (const auto& stack : kStacks) {
    // 1e-10 of the incident light; the model counts in percent.
    EXPECT_LT(LargestDifference(Reflect(Of(stack), StateOf(stack), 0.0), test::Reflected(stack)),
              1e-8)
        << stack.layers.size() << " layers, " << stack.layers[0].thicknessNm;
  }
}

// A quarter wave of MgF2 (1.38) on glass (1.52) leaves ((1.52 - 1.38^2) / (1.52 + 1.38^2))^2,
// 1.26 %: E. Hecht, Optics, section 9.7.2.
TEST(FilmModel, GivesThePublishedQuarterWave) {
  const FilmStack stack{MaterialOf([](double) { return 1.52; }),
                        {MaterialOf([](double) { return 1.38; })}};
  EXPECT_NEAR(Reflect(stack, {.thicknessesNm = {550.0 / 4.0 / 1.38}}, 0.0)[550], 1.2601, 5e-5);
}

// The spread and the slit against plain sums over thicknesses and over wavelengths.
TEST(FilmModel, DampsTheFringesByTheSpreadAndTheSlit) {
  const auto mean = [](auto valueAt) {
    double sum = 0.0;
    double weights = 0.0;
    for (double z = -6.0; z <= 6.0; z += 0.02) {
      sum += std::exp(-z * z / 2.0) * valueAt(z);
      weights += std::exp(-z * z / 2.0);
    }
    return sum / weights;
  };
  for (const double thicknessNm : {1500.0, 6000.0, 25000.0}) {
    for (const double spread : {0.002, 0.01, 0.1}) {
      const auto uneven =
          Reflect(test::CoatStack(), {.thicknessesNm = {thicknessNm}, .spread = spread}, 0.0);
      for (const int nm : {440, 613, 840}) {
        const double truth = mean([&](double z) {
          return 100.0 *
                 simulator::SplitPower(test::Coat(thicknessNm * (1.0 + spread * z)), nm).reflected;
        });
        // What is left of the second harmonic under strong damping.
        EXPECT_NEAR(uneven[nm], truth, 1e-3) << thicknessNm << " spread " << spread << " at " << nm;
      }
    }
    const auto blurred = Reflect(test::CoatStack(), {.thicknessesNm = {thicknessNm}}, 2.0);
    for (const int nm : {460, 613, 820}) {
      const double truth = mean([&](double z) {
        return 100.0 *
               simulator::SplitPower(test::Coat(thicknessNm), nm + 2.0 / 2.35482 * z).reflected;
      });
      // The slit counts as a factor on the phases; what is second order in its width is left out.
      EXPECT_NEAR(blurred[nm], truth, 0.01) << thicknessNm << " at " << nm;
    }
  }
}

TEST(FilmModel, KnowsItsSlopes) {
  for (const auto& stack : kStacks) {
    FilmState state = StateOf(stack);
    state.spread = 0.004;
    const FilmModel model(Of(stack), 450, 830, 38, 1.5);
    const std::size_t columns = model.Layers() + 1;
    std::vector<double> percent(model.Points());
    std::vector<double> slopes(model.Points() * columns);
    model.Reflect(state, percent, slopes);
    for (std::size_t column = 0; column < columns; ++column) {
      const bool bySpread = column == model.Layers();
      const double step = bySpread ? 1e-6 : 1e-3;
      std::vector<double> low(model.Points());
      std::vector<double> high(model.Points());
      for (auto [values, sign] : {std::pair(&low, -1.0), std::pair(&high, 1.0)}) {
        FilmState moved = state;
        (bySpread ? moved.spread : moved.thicknessesNm[column]) += sign * step;
        if (!bySpread && moved.thicknessesNm[column] < 0.0) {
          moved.thicknessesNm[column] = 0.0;
        }
        model.Reflect(moved, *values);
      }
      for (std::size_t i = 0; i < model.Points() && state.thicknessesNm[0] > 0.0; ++i) {
        const double slope = (high[i] - low[i]) / (2.0 * step);
        EXPECT_NEAR(slopes[i * columns + column], slope, 1e-4 * std::abs(slope) + 1e-4)
            << stack.layers.size() << " layers, column " << column << " at " << model.Nm(i);
      }
    }
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_fit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "optics/fourier_thickness.h"
#include "support/films.h"

namespace vexa {
namespace {

using test::Coat;
using test::CoatStack;
using test::Flat;
using test::Reflected;

constexpr double kNoise = 0.02;  // percent of reflectance

double Primer(double nm) {
  return 1.515 + 5000.0 / (nm * nm);
}

simulator::FilmStack PrimedCoat(double coatNm, double primerNm) {
  return {simulator::LensPlasticIndex, {{simulator::HardCoatIndex, coatNm}, {Primer, primerNm}}};
}

FilmStack PrimedStack() {
  FilmStack stack = CoatStack();
  stack.layers.push_back(test::MaterialOf(Primer));
  return stack;
}

// A coat of 3000 nm whose thickness scatters.
ReflectanceSpectrum Uneven(double spread) {
  ReflectanceSpectrum spectrum;
  FilmModel(CoatStack(), 440, 840, 1, 0.0)
      .Reflect({.thicknessesNm = {3000.0}, .spread = spread}, spectrum.Values());
  const ReflectanceSpectrum noisy = Reflected(Coat(0.0), kNoise);
  const ReflectanceSpectrum clean = Reflected(Coat(0.0));
  for (int nm = 440; nm <= 840; ++nm) {
    spectrum[nm] += noisy[nm] - clean[nm];
  }
  return spectrum;
}

// The virtual instrument's optics have no slit.
FilmFit Fit(const ReflectanceSpectrum& spectrum, const FilmStack& stack,
            std::vector<ThicknessRange> ranges = {},
            FilmFitOptions options = {.bandwidthNm = 0.0}) {
  ranges.resize(stack.layers.size());
  const auto fit = FitFilm(spectrum, stack, ranges, options);
  EXPECT_TRUE(std::holds_alternative<FilmFit>(fit));
  return std::get<FilmFit>(fit);
}

TEST(FourierThickness, ReadsASingleFilm) {
  for (const double truthNm : {1200.0, 1500.0, 2730.0, 6000.0, 12000.0, 40000.0}) {
    const auto transform =
        TransformFringes(Reflected(Coat(truthNm), kNoise), CoatStack().layers[0].n);
    ASSERT_TRUE(transform && !transform->peaks.empty()) << truthNm;
    // 2 nm, and the fringes that the wavelengths sample too coarsely.
    EXPECT_NEAR(transform->peaks[0].thicknessNm, truthNm, 2.0 + 5e-4 * truthNm) << truthNm;
    EXPECT_GT(transform->peaks[0].ratio, 20.0) << truthNm;
  }
  const auto bare = TransformFringes(Reflected(Coat(0.0), kNoise), CoatStack().layers[0].n);
  ASSERT_TRUE(bare);
  EXPECT_LT(bare->peaks[0].ratio, 5.0) << "noise alone";
  EXPECT_TRUE(TransformFringes(Flat(0.0), Flat(1.5))->peaks.empty());
  for (const double index : {0.0, -1.5, std::nan("")}) {
    EXPECT_FALSE(TransformFringes(Flat(4.0), Flat(index))) << index;
  }
  EXPECT_FALSE(TransformFringes(Flat(4.0), Flat(1.5), 440, 458)) << "19 points";
}

TEST(FilmFit, FindsOneLayerWithoutAHint) {
  for (const double truthNm :
       {80.0, 100.0, 200.0, 450.0, 1100.0, 1500.0, 2000.0, 4000.0, 12000.0, 20000.0, 48000.0}) {
    const FilmFit fit = Fit(Reflected(Coat(truthNm), kNoise), CoatStack());
    EXPECT_EQ(FitOutcomeName(fit.outcome), QStringLiteral("ok")) << truthNm;
    const FittedLayer& layer = fit.layers[0];
    EXPECT_NEAR(layer.thicknessNm, truthNm, std::max(0.1, 1e-4 * truthNm));
    EXPECT_NEAR(layer.thicknessNm, truthNm, 1.5 * layer.uncertaintyNm) << truthNm;
    EXPECT_LT(layer.statisticalNm, layer.uncertaintyNm);
    EXPECT_NEAR(fit.scale, 1.0, 0.02) << truthNm;
    EXPECT_NEAR(fit.rms, kNoise, 0.1 * kNoise) << truthNm;
    EXPECT_EQ(fit.fitted.size(), 401U);
  }
}

TEST(FilmFit, FindsOneLayerInFewWavelengths) {
  const std::pair<int, int> ranges[] = {{550, 650}, {500, 550}, {500, 525}};
  for (const auto& [fromNm, toNm] : ranges) {
    for (const double truthNm : {1500.0, 2000.0, 4000.0, 6000.0, 9000.0}) {
      const FilmFit fit = Fit(Reflected(Coat(truthNm), kNoise), CoatStack(), {},
                              {.fromNm = fromNm, .toNm = toNm, .bandwidthNm = 0.0});
      EXPECT_EQ(FitOutcomeName(fit.outcome), QStringLiteral("ok")) << fromNm << ' ' << truthNm;
      EXPECT_NEAR(fit.layers[0].thicknessNm, truthNm, 2.0) << fromNm << ' ' << toNm;
    }
  }
}

TEST(FilmFit, TellsOfFringesOutsideItsRanges) {
  const struct {
    double truthNm;
    ThicknessRange range;
    bool told;
  } cases[] = {{8000.0, {500.0, 3000.0}, true},
               {2000.0, {5000.0, 60000.0}, true},
               {2000.0, {50.0, 60000.0}, false},
               {0.0, {500.0, 3000.0}, false}};
  for (const auto& c : cases) {
    const FilmFit fit = Fit(Reflected(Coat(c.truthNm), kNoise), CoatStack(), {c.range});
    EXPECT_EQ(!fit.warnings.isEmpty(), c.told) << c.truthNm << ' ' << c.range.fromNm;
  }
}

TEST(FilmFit, IsNeverSureOfWhatItCannotTell) {
  const FilmFitOptions all{.offsetFree = true, .indexFree = true};
  const struct {
    const char* name;
    double truthNm;
    double noise;
    ThicknessRange range;
    FilmFitOptions options;
    FitOutcome outcome;
  } cases[] = {
      {"range below", 1500.0, kNoise, {100.0, 1490.0}, {}, FitOutcome::kNone},
      {"range above", 1500.0, kNoise, {1600.0, 5000.0}, {}, FitOutcome::kNone},
      {"thin, range beside it", 250.0, kNoise, {300.0, 5000.0}, {}, FitOutcome::kNone},
      {"all free, no noise", 2000.0, 0.0, {}, all, FitOutcome::kNone},
  };
  for (const auto& c : cases) {
    const FilmFit fit = Fit(Reflected(Coat(c.truthNm), c.noise), CoatStack(), {c.range}, c.options);
    EXPECT_EQ(FitOutcomeName(fit.outcome), FitOutcomeName(c.outcome)) << c.name;
    EXPECT_FALSE(fit.warnings.isEmpty()) << c.name;
    EXPECT_FALSE(fit.layers[0].uncertaintyNm > kMostFilmNm) << c.name;
  }
}

TEST(FilmFit, IsGivenUpWhenAsked) {
  std::stop_source stop;
  stop.request_stop();
  const std::vector<ThicknessRange> ranges(2);
  const auto fit = FitFilm(Reflected(PrimedCoat(3000.0, 700.0), kNoise), PrimedStack(), ranges, {},
                           nullptr, stop.get_token());
  ASSERT_TRUE(std::holds_alternative<FilmFitFault>(fit));
  EXPECT_EQ(std::get<FilmFitFault>(fit), FilmFitFault::kStopped);
}

TEST(FilmFit, FindsSeveralLayers) {
  const std::pair<double, double> films[] = {{3000, 700}, {2500, 1200}, {4000, 300}, {2000, 2000}};
  for (const auto& [coatNm, primerNm] : films) {
    const ReflectanceSpectrum spectrum = Reflected(PrimedCoat(coatNm, primerNm), kNoise);
    const FilmFit fit = Fit(spectrum, PrimedStack());
    EXPECT_EQ(FitOutcomeName(fit.outcome), QStringLiteral("ok")) << coatNm << ' ' << primerNm;
    EXPECT_NEAR(fit.layers[0].thicknessNm, coatNm, 1.0);
    EXPECT_NEAR(fit.layers[1].thicknessNm, primerNm, 2.0);
    const FilmFit known = Fit(spectrum, PrimedStack(), {{}, {primerNm, primerNm}});
    EXPECT_EQ(known.layers[1].thicknessNm, primerNm);
    EXPECT_EQ(known.layers[1].uncertaintyNm, 0.0);
    EXPECT_NEAR(known.layers[0].thicknessNm, coatNm, 1.0);
  }
}

TEST(FilmFit, FindsThreeAndFourLayersWithoutAHint) {
  const std::vector<double> films[] = {
      {3000, 700, 1500}, {1200, 2600, 900}, {3100, 1900, 1400, 2300}};
  for (const std::vector<double>& truthNm : films) {
    simulator::FilmStack sample{simulator::LensPlasticIndex, {}};
    FilmStack stack = CoatStack();
    stack.layers.clear();
    for (std::size_t j = 0; j < truthNm.size(); ++j) {
      const bool coat = j % 2 == 0;
      sample.layers.push_back(
          {coat ? simulator::IndexCurve(simulator::HardCoatIndex) : Primer, truthNm[j]});
      stack.layers.push_back(test::MaterialOf(sample.layers.back().index));
    }
    const FilmFit fit = Fit(Reflected(sample, kNoise), stack);
    EXPECT_EQ(fit.outcome, FitOutcome::kOk) << truthNm.size();
    for (std::size_t j = 0; j < truthNm.size(); ++j) {
      EXPECT_NEAR(fit.layers[j].thicknessNm, truthNm[j], 5.0) << truthNm.size() << ' ' << j;
    }
  }
}

TEST(FilmFit, TellsWhatTheStackIsNot) {
  const struct {
    const char* name;
    ReflectanceSpectrum spectrum;
    FitOutcome outcome;
  } cases[] = {
      {"bare", Reflected(Coat(0.0), kNoise), FitOutcome::kNone},
      {"bare without noise", Reflected(Coat(0.0)), FitOutcome::kNone},
      {"mirror", test::SpectrumOf([](int nm) { return 88.0 + nm * 0.005; }), FitOutcome::kNone},
      {"flat", Flat(20.0), FitOutcome::kNone},
      {"washed out", Uneven(0.06), FitOutcome::kNone},
      {"primed coat", Reflected(PrimedCoat(3000.0, 700.0), kNoise), FitOutcome::kPoor},
      {"coat without noise", Reflected(Coat(1500.0)), FitOutcome::kOk},
  };
  for (const auto& c : cases) {
    const FilmFit fit = Fit(c.spectrum, CoatStack());
    EXPECT_EQ(FitOutcomeName(fit.outcome), FitOutcomeName(c.outcome)) << c.name;
    EXPECT_EQ(std::isnan(fit.layers[0].thicknessNm), c.outcome == FitOutcome::kNone) << c.name;
  }
  // Of few fringes under much noise the next order fits as well.
  const FilmFit unsure = Fit(Reflected(Coat(9000.0), 1.2), CoatStack(), {},
                             {.fromNm = 600, .toNm = 700, .bandwidthNm = 0.0});
  EXPECT_EQ(FitOutcomeName(unsure.outcome), QStringLiteral("ambiguous"));
  EXPECT_FALSE(unsure.alternatives.empty());
}

TEST(FilmFit, FreesWhatItIsTold) {
  ReflectanceSpectrum spectrum = Reflected(Coat(3000.0), kNoise);
  for (double& value : spectrum.Values()) {
    value = 1.3 * value + 0.5;
  }
  const FilmFit moved = Fit(spectrum, CoatStack(), {}, {.offsetFree = true, .bandwidthNm = 0.0});
  EXPECT_NEAR(moved.scale, 1.3, 0.02);
  EXPECT_NEAR(moved.offset, 0.5, 0.1);
  EXPECT_NEAR(moved.layers[0].thicknessNm, 3000.0, 0.3);

  // The index of the fit is 1 % too high: without freedom the thickness makes up for it.
  FilmStack wrong = CoatStack();
  for (double& n : wrong.layers[0].n.Values()) {
    n *= 1.01;
  }
  const ReflectanceSpectrum plain = Reflected(Coat(3000.0), kNoise);
  EXPECT_NEAR(Fit(plain, wrong).layers[0].thicknessNm, 2970.0, 5.0);
  const FilmFit freed =
      Fit(plain, wrong, {}, {.scaleFree = false, .indexFree = true, .bandwidthNm = 0.0});
  EXPECT_NEAR(freed.index, 1.0 / 1.01, 1e-3);
  EXPECT_NEAR(freed.layers[0].thicknessNm, 3000.0, 3.0);
  const FilmFit warned = Fit(Reflected(Coat(300.0), kNoise), CoatStack(), {{200.0, 400.0}},
                             {.offsetFree = true, .indexFree = true, .bandwidthNm = 0.0});
  EXPECT_FALSE(warned.warnings.isEmpty()) << "scale, offset and index of a thin film";
}

TEST(FilmFit, MeasuresTheSpread) {
  for (const double spread : {0.005, 0.01, 0.02}) {
    const FilmFit fit = Fit(Uneven(spread), CoatStack());
    EXPECT_EQ(FitOutcomeName(fit.outcome), QStringLiteral("ok")) << spread;
    EXPECT_NEAR(fit.spread, spread, 0.1 * spread);
    EXPECT_NEAR(fit.layers[0].thicknessNm, 3000.0, 2.0) << spread;
  }
}

TEST(FilmFit, AddsTheUncertaintiesThatItIsTold) {
  const ReflectanceSpectrum spectrum = Reflected(Coat(4000.0), kNoise);
  const auto uncertainty = [&](double wavelengthNm, double index) {
    return Fit(spectrum, CoatStack(), {},
               {.bandwidthNm = 0.0,
                .wavelengthUncertaintyNm = wavelengthNm,
                .indexUncertainty = index})
        .layers[0]
        .uncertaintyNm;
  };
  EXPECT_LT(uncertainty(0.0, 0.0), 0.1);
  // 4000 nm times 0.1 in 577, the middle in wave numbers, and the dispersion of the coat.
  EXPECT_NEAR(uncertainty(0.1, 0.0), 0.72, 0.05);
  EXPECT_NEAR(uncertainty(0.0, 0.01), 40.0, 0.1);
  EXPECT_NEAR(uncertainty(0.1, 1e-4), std::hypot(0.72, 0.4), 0.05);
}

// Ten times the noise in the blue: who knows it errs less than who takes all points alike.
TEST(FilmFit, WeighsByTheNoiseThatItIsTold) {
  constexpr int kSpectra = 40;
  constexpr double kTruthNm = 1500.0;
  const ReflectanceSpectrum noise =
      test::SpectrumOf([](int nm) { return 0.02 * (1.0 + 9.0 * (840 - nm) / 400.0); });
  const ReflectanceSpectrum alike = Flat(1.0);
  const ReflectanceSpectrum clean = Reflected(Coat(kTruthNm));
  const std::vector<ThicknessRange> ranges{{1400.0, 1600.0}};
  std::mt19937_64 generator(7);
  std::normal_distribution<double> normal;
  double told = 0.0;
  double untold = 0.0;
  int held = 0;
  for (int i = 0; i < kSpectra; ++i) {
    const ReflectanceSpectrum spectrum =
        test::SpectrumOf([&](int nm) { return clean[nm] + noise[nm] * normal(generator); });
    const auto layer = [&](const ReflectanceSpectrum& weights) {
      return std::get<FilmFit>(
                 FitFilm(spectrum, CoatStack(), ranges, {.bandwidthNm = 0.0}, &weights))
          .layers.front();
    };
    const FittedLayer weighed = layer(noise);
    const double off = weighed.thicknessNm - kTruthNm;
    told += off * off;
    untold += std::pow(layer(alike).thicknessNm - kTruthNm, 2);
    held += std::abs(off) <= weighed.statisticalNm ? 1 : 0;
  }
  EXPECT_LT(told, 0.7 * untold);
  EXPECT_GE(held, 34);  // 38 expected
}

TEST(FilmFit, RefusesWhatHasNoMeaning) {
  const ReflectanceSpectrum good = Reflected(Coat(1500.0));
  FilmStack noIndex = CoatStack();
  noIndex.layers[0].n[600] = 0.0;
  FilmStack gain = CoatStack();
  gain.substrate.k[600] = -1.0;
  ReflectanceSpectrum broken = good;
  broken[500] = std::numeric_limits<double>::quiet_NaN();
  const std::vector<ThicknessRange> one(1);
  struct Case {
    const char* name;
    ReflectanceSpectrum spectrum;
    FilmStack stack;
    std::vector<ThicknessRange> ranges;
    FilmFitOptions options;
    FilmFitFault fault;
  };
  const Case cases[] = {
      {"no layer", good, {Material{}, {}}, {}, {}, FilmFitFault::kLayers},
      {"ranges missing", good, PrimedStack(), one, {}, FilmFitFault::kLayers},
      {"index 0", good, noIndex, one, {}, FilmFitFault::kLayers},
      {"gain", good, gain, one, {}, FilmFitFault::kLayers},
      {"reversed", good, CoatStack(), {{900, 800}}, {}, FilmFitFault::kThicknessRange},
      {"negative", good, CoatStack(), {{-1, 800}}, {}, FilmFitFault::kThicknessRange},
      {"too thick", good, CoatStack(), {{50, 70000}}, {}, FilmFitFault::kThicknessRange},
      {"no number", good, CoatStack(), {{50, std::nan("")}}, {}, FilmFitFault::kThicknessRange},
      {"19 points", good, CoatStack(), one, {.toNm = 458}, FilmFitFault::kWavelengths},
      {"outside", good, CoatStack(), one, {.fromNm = 400}, FilmFitFault::kWavelengths},
      {"confidence", good, CoatStack(), one, {.confidence = 1.0}, FilmFitFault::kOption},
      {"bandwidth", good, CoatStack(), one, {.bandwidthNm = -1.0}, FilmFitFault::kOption},
      {"dark", Flat(0.0), CoatStack(), one, {}, FilmFitFault::kSpectrum},
      {"not a number", broken, CoatStack(), one, {}, FilmFitFault::kSpectrum},
  };
  for (const Case& c : cases) {
    const auto fit = FitFilm(c.spectrum, c.stack, c.ranges, c.options);
    ASSERT_TRUE(std::holds_alternative<FilmFitFault>(fit)) << c.name;
    EXPECT_EQ(std::get<FilmFitFault>(fit), c.fault) << c.name;
    EXPECT_FALSE(FilmFitFaultText(c.fault).isEmpty());
  }
  EXPECT_EQ(FitFilms(std::vector{good, Flat(0.0), good}, CoatStack(), one).size(), 3U);
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>

#include "optics/bunsan.h"
#include "optics/extremum_search.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;
using test::SpectrumOf;

// A level of 10 % with a triangular peak (or, of negative height, valley) at each wavelength.
ReflectanceSpectrum Peaks(std::initializer_list<double> peaksNm, double height) {
  return SpectrumOf([&](int nm) {
    double value = 10.0;
    for (const double peak : peaksNm) {
      value += height * std::max(0.0, 1.0 - std::abs(nm - peak) / 20.0);
    }
    return value;
  });
}

// Fringes of a film of optical thickness nd: the phase between its two reflections is 4 pi nd / w.
ReflectanceSpectrum Fringes(double opticalNm) {
  return SpectrumOf([opticalNm](int nm) {
    return 10.0 + 5.0 * std::cos(4.0 * std::numbers::pi * opticalNm / nm);
  });
}

struct Outcome {
  Status status = 1;
  ThicknessResult result;
  ReflectanceSpectrum film;
};

Outcome Compute(std::int16_t type, std::int16_t kind, const ReflectanceSpectrum& spectrum,
                const ReflectanceSpectrum& film = Flat(1.5), std::optional<double> substrate = {}) {
  Outcome outcome{.result = {}, .film = film};
  outcome.status =
      ComputeThickness(type, kind, substrate ? DispersionKind::kSubstrate : std::int16_t{0},
                       Flat(substrate.value_or(0.0)), spectrum, outcome.film, outcome.result);
  return outcome;
}

TEST(Thickness, FringesGiveTheThicknessThatMadeThem) {
  for (const double truthNm : {1000.0, 1500.0, 2000.0, 2730.0, 4000.0}) {
    for (const std::int16_t type : {ThicknessType::kA, ThicknessType::kB, ThicknessType::kC}) {
      const auto [status, result, film] =
          Compute(type, ThicknessKind::kPhysical, Fringes(1.5 * truthNm));
      ASSERT_EQ(status, 0) << truthNm << " type " << type;
      // The method's own limit: 1 nm in each of the two wavelengths.
      const double w1 = result.first.wavelengthNm;
      const double w2 = result.second.wavelengthNm;
      const double relative = (w1 / w2 + w2 / w1) / (w2 - w1);
      EXPECT_NEAR(result.thicknessNm, truthNm, truthNm * relative) << "type " << type;
      EXPECT_EQ(film, Flat(1.5));
    }
  }
}

TEST(Thickness, TwoMaximaByHand) {
  const ReflectanceSpectrum spectrum = Peaks({500, 600}, 20.0);
  const ThicknessResult optical = Compute(ThicknessType::kB, 1, spectrum).result;
  EXPECT_DOUBLE_EQ(optical.thicknessNm, 1500.0);  // 0.5 * 500 * 600 / 100
  EXPECT_EQ(optical.second, (ExtremumPoint{600.0, 30.0}));
  EXPECT_EQ(ExtremumRows(optical.extrema).join(u'\n'),
            QStringLiteral("1\tP\t500\t30.0000\n2\tP\t600\t30.0000"));
  // A dispersive film: 0.5 * 500 * 600 / (1.6 * 600 - 1.5 * 500)
  const ReflectanceSpectrum film = SpectrumOf([](int nm) { return 1.6 - (nm - 500) * 0.001; });
  const Outcome physical = Compute(ThicknessType::kB, 0, spectrum, film);
  EXPECT_NEAR(physical.result.thicknessNm, 150000.0 / 210.0, 1E-9);
}

TEST(Thickness, EachTypeTakesItsPair) {
  const ReflectanceSpectrum maxima = Peaks({480, 560, 640, 720}, 20.0);
  const ReflectanceSpectrum minima = Peaks({480, 560, 640, 720}, -8.0);
  // By hand: A 0.5 * 640 * 720 / 80; B 3 * 0.5 * 480 * 720 / 240.
  EXPECT_DOUBLE_EQ(Compute(ThicknessType::kA, 1, minima).result.thicknessNm, 2880.0);
  EXPECT_DOUBLE_EQ(Compute(ThicknessType::kB, 1, maxima).result.thicknessNm, 2160.0);
  // C: peaks at 480 and 640, a valley at 560; 2 * 0.25 * 480 * 640 / 160.
  const ReflectanceSpectrum both = SpectrumOf([](int nm) {
    return 10.0 + 5.0 * std::cos(std::numbers::pi * (std::clamp(nm, 480, 640) - 480) / 80.0) +
           std::min(0, nm - 480) - std::max(0, nm - 640);
  });
  const Outcome c = Compute(ThicknessType::kC, 1, both);
  EXPECT_EQ(c.result.extrema.count, 3);
  EXPECT_DOUBLE_EQ(c.result.thicknessNm, 960.0);
  EXPECT_EQ(ExtremumRows(c.result.extrema)[1], QStringLiteral("2\tV\t560\t5.0000"));
}

TEST(Thickness, StatusesAndEmptyResults) {
  const ReflectanceSpectrum good = Fringes(3000.0);
  // Smoothing weakens such ripple but leaves it: 54 maxima, and 28 with 29 minima between.
  const auto ripple = [](double periodNm) {
    return SpectrumOf([periodNm](int nm) {
      return 50.0 + 10.0 * std::cos(2.0 * std::numbers::pi * nm / periodNm);
    });
  };
  struct Case {
    const char* name;
    std::int16_t type, kind;
    ReflectanceSpectrum spectrum;
    double index;
    Status status;
  };
  const Case cases[] = {
      {"no extremum", 1, 0, Flat(4.0), 1.5, -1},
      {"one maximum", 1, 0, Peaks({600}, 20), 1.5, -1},
      {"maxima are not asked for", 0, 0, Peaks({600}, -8), 1.5, -1},
      {"more minima than the limit", 0, 0, ripple(7.3), 1.5, -2},
      {"half as many", 1, 0, ripple(14.0), 1.5, 0},
      {"more than the limit with both sorts", 2, 0, ripple(14.0), 1.5, -2},
      {"an index of 0", 0, 0, good, 0.0, -3},
      {"an index of 0 does no harm to an optical one", 0, 1, good, 0.0, 0},
      {"type A with another kind", 0, 2, good, 1.5, -3},
      {"type B with another kind", 1, 2, good, 1.5, 0},
      {"type C with another kind", 2, 2, good, 1.5, 0},
      {"unknown type", 3, 0, good, 1.5, -4},
      {"not numbers", 2, 0, Flat(std::nan("")), 1.5, -1},
  };
  for (const Case& c : cases) {
    const auto [status, result, film] = Compute(c.type, c.kind, c.spectrum, Flat(c.index));
    EXPECT_EQ(status, c.status) << c.name;
    EXPECT_EQ(result.first == ExtremumPoint(), c.status != 0) << c.name;
    EXPECT_EQ(result.second == ExtremumPoint(), c.status != 0) << c.name;
    EXPECT_EQ(ExtremumRows(result.extrema).isEmpty(), c.status != 0) << c.name;
    EXPECT_EQ(result.thicknessNm == 0.0, c.status != 0 || c.kind == 2) << c.name;
  }
}

TEST(Thickness, SubstrateChoosesTheExtremaAndReplacesTheIndex) {
  const ReflectanceSpectrum spectrum = Fringes(3000.0);  // 10 % on average: an index of 1.925
  struct Case {
    std::int16_t type;
    double substrate;
    bool maxima;
  };
  const Case cases[] = {{0, 1.5, true}, {1, 1.9, true}, {0, 1.95, false}, {1, 2.2, false}};
  for (const Case& c : cases) {
    const auto [status, result, film] = Compute(c.type, 1, spectrum, Flat(1.5), c.substrate);
    ASSERT_EQ(status, 0);
    for (const Extremum& extremum : result.extrema.Found()) {
      EXPECT_EQ(extremum.maximum, c.maxima) << c.substrate;
    }
    EXPECT_NE(film[440], 1.5);
    EXPECT_NE(film[840], 1.5);
  }
  // The tops of 25 % are an index of 3, the film's is then sqrt(1.5 * 3).
  const Outcome derived = Compute(1, 0, Peaks({500, 600}, 15.0), Flat(9.0), 1.5);
  EXPECT_NEAR(derived.film[600], std::sqrt(4.5), 1E-12);
  EXPECT_NEAR(derived.result.thicknessNm, 1500.0 / std::sqrt(4.5), 1E-9);
  EXPECT_EQ(Compute(2, 1, spectrum, Flat(9.0), 1.5).status, -3) << "not for type C";
  EXPECT_EQ(Compute(1, 1, spectrum, Flat(9.0), 0.0).status, -3) << "a substrate without an index";
  EXPECT_EQ(Compute(1, 1, Peaks({500, 600}, 90.0), Flat(9.0), 1.5).status, -3)
      << "100 % has no index";
}

TEST(ExtremumSearch, SmoothingCutsItsWindowAtTheEnds) {
  const ReflectanceSpectrum smoothed = Smoothed(SpectrumOf([](int nm) { return nm; }));
  EXPECT_DOUBLE_EQ(smoothed[440], 442.5);  // mean of 440..445
  EXPECT_DOUBLE_EQ(smoothed[445], 445.0);
  EXPECT_DOUBLE_EQ(smoothed[836], 835.5);
}

TEST(ExtremumSearch, FlatRuns) {
  // Heights that begin at the wavelengths given, straight lines between.
  struct Case {
    const char* name;
    std::vector<std::pair<int, double>> corners;
    ExtremaWanted wanted;
    const char* rows;
  };
  using enum ExtremaWanted;
  const Case cases[] = {
      {"a top", {{440, 0}, {600, 160}, {604, 160}, {840, 0}}, kMaxima, "P602.5"},
      {"a step up is a minimum", {{440, 0}, {600, 160}, {604, 160}, {840, 400}}, kBoth, "V602.5"},
      {"a step down is a maximum", {{440, 400}, {600, 160}, {605, 160}, {840, 0}}, kBoth, "P603.0"},
      {"flat from the start", {{440, 5}, {450, 5}, {840, 400}}, kBoth, "V445.5"},
      {"flat to the end", {{440, 0}, {830, 400}, {840, 400}}, kBoth, ""},
      {"two tops, the next one step further down",
       {{440, 0}, {600, 160}, {604, 160}, {605, 159}, {609, 159}, {840, 0}},
       kBoth,
       "P602.5 P607.5"},
      {"a top after a step that was not wanted",
       {{440, 0}, {500, 60}, {504, 60}, {600, 160}, {604, 160}, {840, 0}},
       kMaxima,
       "P602.5"},
      {"a top one step above one that was not wanted",
       {{440, 0}, {500, 60}, {504, 60}, {505, 61}, {509, 61}, {840, 0}},
       kMaxima,
       "P507.5"},
      {"a valley after a step that was not wanted",
       {{440, 900}, {500, 500}, {504, 500}, {600, 300}, {604, 300}, {840, 900}},
       kMinima,
       "V602.5"},
      {"a run that was not wanted counts on, one step further down",
       {{440, 900}, {500, 500}, {504, 500}, {505, 499}, {508, 499}, {840, 900}},
       kMinima,
       "V505.5"},
  };
  for (const Case& c : cases) {
    const ReflectanceSpectrum spectrum = SpectrumOf([&](int nm) {
      std::size_t i = 1;
      while (c.corners[i].first < nm) {
        ++i;
      }
      const auto& [fromNm, from] = c.corners[i - 1];
      const auto& [toNm, to] = c.corners[i];
      return from + std::round((to - from) * (nm - fromNm) / (toNm - fromNm) * 1024.0) / 1024.0;
    });
    ExtremumList list;
    EXPECT_TRUE(DetectExtrema(spectrum, spectrum, c.wanted, list)) << c.name;
    QStringList found;
    for (const Extremum& extremum : list.Found()) {
      found << (extremum.maximum ? u'P' : u'V') +
                   QString::number(extremum.point.wavelengthNm, 'f', 1);
      EXPECT_EQ(extremum.point.reflectance, spectrum[NearestNm(extremum.point.wavelengthNm)]);
    }
    EXPECT_EQ(found.join(u' ').toStdString(), c.rows) << c.name;
  }
}

TEST(ExtremumSearch, TheFiftiethEndsIt) {
  for (const int peaks : {49, 50, 51}) {
    const ReflectanceSpectrum zigzag = SpectrumOf([peaks](int nm) {
      const int step = nm - 440;
      return step <= 6 * peaks ? std::abs(3 - std::abs(step % 6 - 3)) : 0.0;
    });
    ExtremumList list;
    EXPECT_EQ(DetectExtrema(zigzag, zigzag, ExtremaWanted::kMaxima, list), peaks < 50);
    EXPECT_EQ(list.count, std::min(peaks, 50));
  }
}

TEST(ExtremumSearch, RefinementTakesTheMiddleOfTies) {
  struct Case {
    const char* name;
    double foundNm;
    std::vector<int> topsNm;
    ExtremumPoint refined;
  };
  const Case cases[] = {
      {"out of reach", 600.0, {606}, {600.0, 1.0}},  // all eleven are equal: 595 + 10 / 2
      {"three tops apart", 600.0, {596, 600, 605}, {597.0, 9.0}},
      {"half a nanometre goes to the even side", 600.5, {606, 595}, {606.0, 9.0}},
      {"and on the odd side too", 601.5, {596, 606}, {596.5, 9.0}},
      {"window cut at the lower end", 441.0, {440}, {440.0, 9.0}},
      {"window cut at the upper end", 839.5, {840}, {840.0, 9.0}},
  };
  for (const Case& c : cases) {
    for (const double sign : {1.0, -1.0}) {
      ReflectanceSpectrum spectrum = Flat(sign);
      for (const int nm : c.topsNm) {
        spectrum[nm] = 9.0 * sign;
      }
      ExtremumList list;
      list.count = 1;
      list.entries[0] = {{c.foundNm, 0.0}, sign > 0.0};
      RefineExtrema(spectrum, list);
      EXPECT_EQ(list.entries[0].point.wavelengthNm, c.refined.wavelengthNm) << c.name;
      EXPECT_EQ(list.entries[0].point.reflectance, c.refined.reflectance * sign) << c.name;
    }
  }
}

}  // namespace
}  // namespace vexa

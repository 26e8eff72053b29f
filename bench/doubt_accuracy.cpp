// SPDX-License-Identifier: GPL-3.0-or-later
#include "doubt_accuracy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>

#include "optics/dispersion_setting.h"
#include "optics/thickness.h"
#include "optics/thickness_doubts.h"
#include "simulator/film_stack.h"

namespace vexa {
namespace {

struct Noise {
  const char* name;
  double relative;  // of each value
  double absolute;  // percent of reflectance
};

struct Film {
  const char* name;
  simulator::IndexCurve substrate;
  simulator::IndexCurve coat;
};

ReflectanceSpectrum Spectrum(const Film& film, double thicknessNm) {
  const simulator::FilmStack stack{film.substrate, {{film.coat, thicknessNm}}};
  ReflectanceSpectrum spectrum;
  for (int nm = 440; nm <= 840; ++nm) {
    spectrum[nm] = 100.0 * simulator::SplitPower(stack, nm).reflected;
  }
  return spectrum;
}

struct Tally {
  int computed = 0;
  int wrong = 0;  // more than 2 % off
  int slipped = 0;
  int right = 0;  // within 1 %
  int trusted = 0;

  void Add(double off, bool doubted) {
    ++computed;
    wrong += off > 0.02;
    slipped += off > 0.02 && !doubted;
    right += off <= 0.01;
    trusted += off <= 0.01 && !doubted;
  }

  Tally& operator+=(const Tally& other) {
    computed += other.computed;
    wrong += other.wrong;
    slipped += other.slipped;
    right += other.right;
    trusted += other.trusted;
    return *this;
  }

  void Print(const char* film, const char* noise, const char* type) const {
    std::printf("| %s | %s | %s | %d | %d | %d | %d | %d |\n", film, noise, type, computed, wrong,
                slipped, right, trusted);
  }
};

// The results of the three types over all thicknesses of a film.
std::array<Tally, 3> Examine(const Film& film, const Noise& noise) {
  ReflectanceSpectrum index;
  for (int nm = 440; nm <= 840; ++nm) {
    index[nm] = film.coat(nm).real();
  }
  std::mt19937_64 generator(1);
  std::normal_distribution<double> normal;
  std::array<Tally, 3> tallies;
  for (double thicknessNm = 300.0; thicknessNm <= 12000.0; thicknessNm += 65.0) {
    ReflectanceSpectrum spectrum = Spectrum(film, thicknessNm);
    for (double& value : spectrum.Values()) {
      value = std::max(0.0, value + normal(generator) * (noise.relative * value + noise.absolute));
    }
    for (std::size_t type = 0; type < tallies.size(); ++type) {
      const auto number = static_cast<std::int16_t>(type);
      ThicknessResult result;
      ReflectanceSpectrum taken = index;
      if (ComputeThickness(number, ThicknessKind::kPhysical, DispersionKind::kIndexFile, {},
                           spectrum, taken, result) == 0) {
        tallies[type].Add(std::abs(result.thicknessNm / thicknessNm - 1.0),
                          !FindThicknessDoubts(number, spectrum, taken, result).empty());
      }
    }
  }
  return tallies;
}

}  // namespace

bool PrintDoubts() {
  const Film films[] = {
      {"hard coat on lens plastic", simulator::LensPlasticIndex, simulator::HardCoatIndex},
      {"zirconia on glass", simulator::CrownGlassIndex, simulator::ZirconiaIndex},
      {"MgF2 on glass", simulator::CrownGlassIndex, simulator::MagnesiumFluorideIndex},
  };
  const Noise noises[] = {{"none", 0.0, 0.0},
                          {"0.3 % of the value", 0.003, 0.0},
                          {"1 % of the value", 0.01, 0.0},
                          {"0.1 % reflectance", 0.0, 0.1},
                          {"0.3 % reflectance", 0.0, 0.3},
                          {"1 % reflectance", 0.0, 1.0}};
  std::printf(
      "\n| film | noise | type | results | over 2 %% off | of these undoubted | within 1 %% | "
      "of these undoubted |\n|---|---|---|---|---|---|---|---|\n");
  Tally all;
  for (const Film& film : films) {
    for (const Noise& noise : noises) {
      const auto tallies = Examine(film, noise);
      for (std::size_t type = 0; type < tallies.size(); ++type) {
        all += tallies[type];
        const char name[] = {"ABC"[type], '\0'};
        tallies[type].Print(film.name, noise.name, name);
      }
    }
  }
  all.Print("all", "", "");
  return all.slipped * 200 <= all.wrong && all.trusted * 5 >= all.right * 4;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// Measures, on spectra of known films with noise added, how often a doubted or undoubted result of
// the peak/valley method is wrong.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

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
  std::array<int, 5> doubtedRight{};
};

void PrintDoubts() {
  const Film films[] = {
      {"hard coat on lens plastic", simulator::LensPlasticIndex, simulator::HardCoatIndex},
      {"zirconia on glass", simulator::CrownGlassIndex, simulator::ZirconiaIndex},
      {"MgF2 on glass", simulator::CrownGlassIndex, simulator::MagnesiumFluorideIndex},
  };
  const Noise noises[] = {{"none", 0.0, 0.0},
                          {"0.1 % of the value", 0.001, 0.0},
                          {"0.3 % of the value", 0.003, 0.0},
                          {"1 % of the value", 0.01, 0.0},
                          {"0.1 % reflectance", 0.0, 0.1},
                          {"0.3 % reflectance", 0.0, 0.3},
                          {"1 % reflectance", 0.0, 1.0}};
  std::printf(
      "| film | noise | type | results | over 2 %% off | of these undoubted | within 1 %% | of "
      "these "
      "undoubted | edge | duplicate | spacing | noise | disagrees |\n");
  Tally all;
  for (const Film& film : films) {
    ReflectanceSpectrum index;
    for (int nm = 440; nm <= 840; ++nm) {
      index[nm] = film.coat(nm).real();
    }
    for (const Noise& noise : noises) {
      std::mt19937_64 generator(1);
      std::normal_distribution<double> normal;
      std::array<Tally, 3> tallies;
      for (double nm = 300.0; nm <= 12000.0; nm += 65.0) {
        const ReflectanceSpectrum clean = Spectrum(film, nm);
        ReflectanceSpectrum spectrum;
        for (int w = 440; w <= 840; ++w) {
          spectrum[w] = std::max(
              0.0, clean[w] + normal(generator) * (noise.relative * clean[w] + noise.absolute));
        }
        for (std::int16_t type = 0; type < 3; ++type) {
          ThicknessResult result;
          ReflectanceSpectrum taken = index;
          if (ComputeThickness(type, 0, DispersionKind::kIndexFile, {}, spectrum, taken, result) !=
              0) {
            continue;
          }
          const auto doubts = FindThicknessDoubts(type, spectrum, taken, result);
          const double off = std::abs(result.thicknessNm / nm - 1.0);
          for (Tally* tally : {&tallies[static_cast<std::size_t>(type)], &all}) {
            ++tally->computed;
            tally->wrong += off > 0.02;
            tally->slipped += off > 0.02 && doubts.empty();
            tally->right += off <= 0.01;
            tally->trusted += off <= 0.01 && doubts.empty();
            for (const ThicknessDoubt doubt : doubts) {
              tally->doubtedRight[static_cast<std::size_t>(doubt)] += off <= 0.01;
            }
          }
        }
      }
      const auto print = [](const char* a, const char* b, char type, const Tally& t) {
        std::printf("| %s | %s | %c | %d | %d | %d | %d | %.0f %% |", a, b, type, t.computed,
                    t.wrong, t.slipped, t.right, t.right ? 100.0 * t.trusted / t.right : 0.0);
        for (const int count : t.doubtedRight) {
          std::printf(" %d |", count);
        }
        std::printf("\n");
      };
      for (int type = 0; type < 3; ++type) {
        print(film.name, noise.name, "ABC"[type], tallies[static_cast<std::size_t>(type)]);
      }
      if (&film == &films[2] && &noise == &noises[6]) {
        print("all", "all", '*', all);
      }
    }
  }
}

}  // namespace
}  // namespace vexa

int main() {
  vexa::PrintDoubts();
}

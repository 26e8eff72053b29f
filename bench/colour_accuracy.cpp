// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the virtual instrument's samples, D65 and 2 degrees, from their true reflectance:
// as the program gives them beside CIE colours, and these beside what they would be if the spectrum
// began at 380 nm.
#include <array>
#include <cmath>
#include <cstdio>

#include "colour/cie_colour.h"
#include "colour/colorimetry.h"
#include "colour/colour_tables.h"
#include "simulator/samples.h"

namespace vexa {
namespace {

constexpr ColourSettings kSettings{4, true, 440, 840};

struct Lab {
  double L, a, b;
};

// A computation of its own, over the whole range of the tables.
Lab WholeRange(simulator::Sample sample) {
  const ColourTable& power = IlluminantTable(kSettings.illuminant);
  const ObserverTables& observer = ObserverTable(kSettings.observer2Deg);
  const std::array<const ColourTable*, 3> bars{&observer.x, &observer.y, &observer.z};
  std::array<double, 3> f{};
  for (std::size_t k = 0; k < bars.size(); ++k) {
    double white = 0.0;
    double sum = 0.0;
    for (std::size_t i = 0; i < power.size(); ++i) {
      const double weight = power[i] * (*bars[k])[i];
      white += weight;
      sum +=
          weight * simulator::TrueReflectancePercent(sample, 380.0 + 5.0 * static_cast<double>(i));
    }
    const double ratio = sum / white / 100.0;
    f[k] = ratio > 216.0 / 24389.0 ? std::cbrt(ratio) : (24389.0 / 27.0 * ratio + 16.0) / 116.0;
  }
  return {116.0 * f[1] - 16.0, 500.0 * (f[0] - f[1]), 200.0 * (f[1] - f[2])};
}

void PrintSample(const simulator::SampleInfo& info) {
  ReflectanceSpectrum spectrum;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    spectrum[nm] = simulator::TrueReflectancePercent(info.sample, nm);
  }
  ColourResult given;
  const bool done = CalcColour(spectrum, kSettings, given);
  const auto cie = CalcCieColour(spectrum, kSettings);
  if (!done || !cie) {
    std::printf("| `%s` | no colour |\n", info.name.data());
    return;
  }
  const Lab whole = WholeRange(info.sample);
  std::printf("| `%s` | %.3f | %.1f | %.0f | %.3f | %.1f | ", info.name.data(), given.Y, given.C,
              given.h, cie->Y, cie->C);
  if (std::isnan(cie->h)) {
    std::printf("- ");
  } else {
    std::printf("%.0f ", cie->h);
  }
  std::printf("| %.2f | %.2f |\n", cie->spread,
              std::hypot(cie->L - whole.L, cie->a - whole.a, cie->b - whole.b));
}

// Of the weight of X, Y and Z, in percent.
void PrintShareBelow440() {
  const ColourTable& power = IlluminantTable(kSettings.illuminant);
  const ObserverTables& observer = ObserverTable(kSettings.observer2Deg);
  std::printf("\nBelow 440 nm lie");
  for (const auto& [name, bar] :
       {std::pair{'X', &observer.x}, {'Y', &observer.y}, {'Z', &observer.z}}) {
    double below = 0.0;
    double all = 0.0;
    for (std::size_t i = 0; i < power.size(); ++i) {
      all += power[i] * (*bar)[i];
      below += 380 + 5 * i < 440 ? power[i] * (*bar)[i] : 0.0;
    }
    std::printf(" %.1f %% of the weight of %c,", 100.0 * below / all, name);
  }
  std::printf(" for D65 and 2 degrees.\n");
}

}  // namespace
}  // namespace vexa

int main() {
  std::puts(
      "| sample | given Y | C* | h | CIE Y | C* | h | spread | error |\n"
      "|---|---|---|---|---|---|---|---|---|");
  for (const auto& info : vexa::simulator::AllSamples()) {
    vexa::PrintSample(info);
  }
  vexa::PrintShareBelow440();
}

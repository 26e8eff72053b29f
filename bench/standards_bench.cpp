// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cmath>

#include "standards/judgement.h"

namespace {

// Ten conditions from 440 to 800 nm and all other groups, so that every limit is looked at.
vexa::StandardSet FullStandard() {
  vexa::StandardSet standard;
  standard.useReflectance = true;
  for (std::size_t k = 0; k < vexa::kConditionCount; ++k) {
    standard.wavelengths[k] = static_cast<std::int16_t>(440 + 40 * static_cast<int>(k));
    standard.conditions[k] = {true, 2.0 + 0.1 * static_cast<double>(k), 0.0};
  }
  for (vexa::StandardLimits* limits :
       {&standard.averageReflectance, &standard.luminousReflectance,
        &standard.wavelengthValue.limits, &standard.chroma, &standard.hueAngle}) {
    limits->enabled = true;
  }
  return standard;
}

void JudgeTenSlots(benchmark::State& state) {
  const vexa::StandardSet standard = FullStandard();
  vexa::ReflectanceSpectrum reflectance;
  for (int nm = 440; nm <= 840; ++nm) {
    reflectance[nm] = 1.0 + 0.5 * std::sin(nm * 0.03);
  }
  const vexa::ColourResult colour;
  while (state.KeepRunning()) {
    for (int slot = 0; slot < 10; ++slot) {
      benchmark::DoNotOptimize(vexa::JudgeStandards(reflectance, colour, standard));
    }
  }
}
BENCHMARK(JudgeTenSlots)->Unit(benchmark::kMicrosecond);

}  // namespace

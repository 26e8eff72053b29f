// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

#include "optics/dispersion_setting.h"
#include "optics/thickness.h"

namespace {

// The fringes of a film of 4000 nm and index 1.6, with a little roughness as measured spectra have
// it.
vexa::ReflectanceSpectrum Fringes() {
  vexa::ReflectanceSpectrum spectrum;
  for (int nm = 440; nm <= 840; ++nm) {
    spectrum[nm] =
        5.0 - std::cos(4.0 * std::numbers::pi * 1.6 * 4000.0 / nm) + 0.002 * (nm * 7919 % 13);
  }
  return spectrum;
}

// The range is the type: A, B, C.
void OneThickness(benchmark::State& state) {
  const vexa::ReflectanceSpectrum spectrum = Fringes();
  const vexa::ReflectanceSpectrum substrate;
  vexa::ReflectanceSpectrum film;
  for (double& index : film.Values()) {
    index = 1.6;
  }
  vexa::ThicknessResult result;
  while (state.KeepRunning()) {
    const vexa::Status status = vexa::ComputeThickness(
        static_cast<std::int16_t>(state.range(0)), vexa::ThicknessKind::kPhysical,
        vexa::DispersionKind::kFixedValue, substrate, spectrum, film, result);
    if (status != 0) {
      state.SkipWithError("no thickness");
      break;
    }
  }
  state.SetLabel(std::to_string(result.thicknessNm) + " nm");
}
BENCHMARK(OneThickness)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

}  // namespace

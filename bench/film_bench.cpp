// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "optics/film_fit.h"
#include "optics/fourier_thickness.h"

namespace {

vexa::Material Cauchy(double a, double b) {
  vexa::Material material;
  for (int nm = 440; nm <= 840; ++nm) {
    material.n[nm] = a + b / (nm * nm * 1e-6);
  }
  return material;
}

const vexa::Material kSubstrate = Cauchy(1.4855, 0.0045);
const vexa::Material kCoat = Cauchy(1.5803, 0.00751);
const vexa::Material kPrimer = Cauchy(1.515, 0.005);

vexa::ReflectanceSpectrum Noisy(const vexa::FilmStack& stack, std::vector<double> thicknessesNm) {
  const vexa::FilmModel model(stack, 440, 840, 1, 1.0);
  vexa::ReflectanceSpectrum spectrum;
  model.Reflect({std::move(thicknessesNm)}, spectrum.Values());
  std::mt19937_64 generator(1);
  std::normal_distribution<double> noise(0.0, 0.02);
  for (double& value : spectrum.Values()) {
    value += noise(generator);
  }
  return spectrum;
}

const vexa::FilmStack kOne{kSubstrate, {kCoat}};
const vexa::FilmStack kTwo{kSubstrate, {kCoat, kPrimer}};

const vexa::FilmStack kThree{kSubstrate, {kCoat, kPrimer, kCoat}};
const vexa::FilmStack kFour{kSubstrate, {kCoat, kPrimer, kCoat, kPrimer}};

void Fourier(benchmark::State& state) {
  const auto spectrum = Noisy(kOne, {static_cast<double>(state.range(0))});
  for (auto _ : state) {
    benchmark::DoNotOptimize(vexa::TransformFringes(spectrum, kCoat.n));
  }
}
BENCHMARK(Fourier)->Arg(1500)->Arg(50000)->Unit(benchmark::kMicrosecond);

void Fit(benchmark::State& state, const vexa::FilmStack& stack, std::vector<double> truthNm,
         const std::vector<vexa::ThicknessRange>& ranges) {
  const auto spectrum = Noisy(stack, std::move(truthNm));
  std::string label;
  for (auto _ : state) {
    const auto fit = std::get<vexa::FilmFit>(vexa::FitFilm(spectrum, stack, ranges));
    label = vexa::FitOutcomeName(fit.outcome).toStdString();
    for (const auto& layer : fit.layers) {
      label += " " + std::to_string(layer.thicknessNm);
    }
  }
  state.SetLabel(label);
}

void OneLayerSeeded(benchmark::State& state) {
  const auto nm = static_cast<double>(state.range(0));
  Fit(state, kOne, {nm}, {{nm - 100.0, nm + 80.0}});
}
BENCHMARK(OneLayerSeeded)
    ->Arg(300)
    ->Arg(1500)
    ->Arg(4000)
    ->Arg(20000)
    ->Unit(benchmark::kMillisecond);

void OneLayerBlind(benchmark::State& state) {
  Fit(state, kOne, {static_cast<double>(state.range(0))}, {{}});
}
BENCHMARK(OneLayerBlind)
    ->Arg(100)
    ->Arg(300)
    ->Arg(1500)
    ->Arg(4000)
    ->Arg(20000)
    ->Arg(50000)
    ->Unit(benchmark::kMillisecond);

// Bare, of another index than the stack's, so that the noise is not all that is left.
void NoFilm(benchmark::State& state) {
  const auto spectrum = Noisy({kPrimer, {kCoat}}, {0.0});
  std::string label;
  for (auto _ : state) {
    const auto fit = std::get<vexa::FilmFit>(
        vexa::FitFilm(spectrum, kOne, std::vector<vexa::ThicknessRange>(1)));
    label = vexa::FitOutcomeName(fit.outcome).toStdString();
  }
  state.SetLabel(label);
}
BENCHMARK(NoFilm)->Unit(benchmark::kMillisecond);

void TwoLayers(benchmark::State& state) {
  Fit(state, kTwo, {static_cast<double>(state.range(0)), static_cast<double>(state.range(1))},
      {{}, {}});
}
BENCHMARK(TwoLayers)
    ->Args({3000, 700})
    ->Args({2000, 1500})
    ->Args({4000, 1000})
    ->Unit(benchmark::kMillisecond);

// Unknown, and known to a tenth.
void ManyLayers(benchmark::State& state, const vexa::FilmStack& stack, bool known) {
  const std::vector<double> truthNm{3000.0, 700.0, 1500.0, 400.0};
  std::vector<double> used(truthNm.begin(),
                           truthNm.begin() + static_cast<std::ptrdiff_t>(stack.layers.size()));
  std::vector<vexa::ThicknessRange> ranges(used.size());
  for (std::size_t i = 0; known && i < used.size(); ++i) {
    ranges[i] = {0.9 * used[i], 1.1 * used[i]};
  }
  Fit(state, stack, used, ranges);
}
BENCHMARK_CAPTURE(ManyLayers, ThreeKnown, kThree, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ManyLayers, Three, kThree, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ManyLayers, FourKnown, kFour, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ManyLayers, Four, kFour, false)->Unit(benchmark::kMillisecond);

// Ten slots on all processors.
void TenSlots(benchmark::State& state) {
  const std::vector<vexa::ReflectanceSpectrum> spectra(10, Noisy(kOne, {4000.0}));
  const std::vector<vexa::ThicknessRange> ranges(1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(vexa::FitFilms(spectra, kOne, ranges));
  }
}
BENCHMARK(TenSlots)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

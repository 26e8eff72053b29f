// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "instrument/wavelength_mapping.h"

namespace {

void MapFifteenLines(benchmark::State& state) {
  vexa::LineBuffers lines;
  for (std::size_t n = 0; n < 15; ++n) {
    for (std::size_t i = 0; i < vexa::kBytesPerLine; ++i) {
      lines[n].bytes[i] = static_cast<std::uint8_t>(i % 2 == 0 ? i * 7 + n : i % 16);
    }
    lines[n].complete = true;
  }
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(
        vexa::LinesToWaves(lines, vexa::kDefaultLinePositions, vexa::kDetectorStartNm));
  }
}
BENCHMARK(MapFifteenLines)->Unit(benchmark::kMicrosecond);

}  // namespace

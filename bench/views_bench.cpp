// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>

#include "instrument/h8_reply.h"
#include "measurement/reflectance.h"
#include "views/common/theme.h"
#include "views/graph/reflectance_graph.h"

namespace {

// Ten slots with fringes and a little roughness, as measured spectra have them.
void FillSlots(vexa::VEXATYPE& state) {
  for (int slot = 1; slot <= vexa::kSlotCount; ++slot) {
    for (int nm = 440; nm <= 840; ++nm) {
      state.Slot(slot)->reflectance[nm] =
          4.0 + slot * 0.3 * std::sin(nm * 0.01 * slot) + 0.02 * (nm * 7919 % 13);
    }
    state.Slot(slot)->valid = true;
  }
}

// Shown at the size that it has in a window of 1280 x 800.
std::unique_ptr<vexa::ReflectanceGraph> MakeGraph() {
  auto graph = std::make_unique<vexa::ReflectanceGraph>();
  graph->resize(766, 700);
  graph->show();
  QApplication::processEvents();
  return graph;
}

void RedrawTenSlots(benchmark::State& state) {
  vexa::VEXATYPE data;
  FillSlots(data);
  const auto graph = MakeGraph();
  graph->Show(data, 1);
  while (state.KeepRunning()) {
    graph->replot(QCustomPlot::rpImmediateRefresh);
  }
}
BENCHMARK(RedrawTenSlots)->Unit(benchmark::kMillisecond);

// From the body of the data reply to the painted widget: lines, pixels, wavelengths, reflectance,
// graph.
void LastByteToRedrawnGraph(benchmark::State& state) {
  vexa::VEXATYPE data;
  FillSlots(data);
  const auto graph = MakeGraph();
  const std::vector<std::uint8_t> body(4 + 15 * vexa::kBytesPerLine, 0x05);
  std::ranges::fill(data.reference.Values(), 900.0);
  while (state.KeepRunning()) {
    vexa::LineBuffers lines;
    if (!vexa::FillLines(body, lines)) {
      state.SkipWithError("lines");
      break;
    }
    const vexa::MappedSpectrum mapped =
        vexa::LinesToWaves(lines, vexa::kDefaultLinePositions, vexa::kDetectorStartNm);
    std::ranges::copy(mapped.values, data.sample.Values().begin());
    data.Slot(1)->reflectance = vexa::ComputeReflectance(
        data.sample, data.background, data.reference, 4, data.referenceReflectance);
    graph->Show(data, 1);
    QApplication::processEvents();
  }
}
BENCHMARK(LastByteToRedrawnGraph)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  vexa::ApplyTheme(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

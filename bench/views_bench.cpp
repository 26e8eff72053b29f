// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>

#include "instrument/h8_reply.h"
#include "measurement/reflectance.h"
#include "support/ten_slots.h"
#include "views/graph/reflectance_graph.h"

namespace {

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
  vexa::bench::FillSlots(data);
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
  vexa::bench::FillSlots(data);
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>
#include <memory>

#include "instrument/h8_reply.h"
#include "measurement/reflectance.h"
#include "support/silent_messages.h"
#include "support/ten_slots.h"
#include "views/colour/background_picture.h"
#include "views/graph/main_views.h"
#include "views/graph/reflectance_graph.h"
#include "views/statistics/xmr_plot.h"

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

// Ten slots in all seven views.
struct ShownViews {
  ShownViews() {
    vexa::bench::FillSlots(data);
    std::ranges::fill(data.reference.Values(), 900.0);
    std::ranges::fill(data.filmIndex.Values(), 1.5);
    views.resize(766, 760);
    views.show();
    Show(0);
  }

  void Show(int view) {
    data.display.view = static_cast<std::int16_t>(view);
    views.Show(1);
    QApplication::processEvents();  // draws what was queued
    QApplication::processEvents();  // and puts it on the screen
  }

  vexa::VEXATYPE data;
  vexa::bench::SilentMessages messages;
  vexa::WindowFileDialogs dialogs;
  vexa::MainViews views{data, messages, dialogs,
                        std::make_shared<vexa::BackgroundPicture>(messages)};
};

// One frame of a moving cursor: its line, and the readout of ten slots.
void MoveCursorOverTenSlots(benchmark::State& state) {
  ShownViews shown;
  int nm = 440;
  while (state.KeepRunning()) {
    nm = nm == 840 ? 440 : nm + 1;
    shown.views.MoveCursor(nm);
    QApplication::processEvents();
  }
}
BENCHMARK(MoveCursorOverTenSlots)->Unit(benchmark::kMillisecond);

// From the painted reflectance graph to the painted view of this number, which is built then.
void SwitchToView(benchmark::State& state) {
  while (state.KeepRunning()) {
    state.PauseTiming();
    auto shown = std::make_unique<ShownViews>();
    shown->Show(0);
    state.ResumeTiming();
    shown->Show(static_cast<int>(state.range(0)));
    state.PauseTiming();
    shown.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(SwitchToView)->DenseRange(1, 6)->Unit(benchmark::kMillisecond);

// A control chart of so many points at the size that it has in its window, each replot whole.
void DrawControlChart(benchmark::State& state) {
  vexa::XmrPicture picture;
  picture.title = QStringLiteral("Rv");
  for (int i = 0; i < state.range(0); ++i) {
    picture.values.push_back(4.0 + 0.02 * (i * 7919 % 101) + 0.3 * std::sin(i * 0.01));
  }
  const auto limits = vexa::statistics::ComputeLimits(picture.values);
  if (!limits) {
    state.SkipWithError("limits");
    return;
  }
  picture.limits = *limits;
  vexa::XmrPlot plot(vexa::XmrPlot::Panes::kValuesAndRanges);
  plot.resize(766, 700);
  plot.show();
  plot.Show(picture);
  QApplication::processEvents();
  while (state.KeepRunning()) {
    plot.replot(QCustomPlot::rpImmediateRefresh);
  }
}
BENCHMARK(DrawControlChart)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace

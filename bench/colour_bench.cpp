// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "colour/colorimetry.h"
#include "colour/diagram_background.h"
#include "support/silent_messages.h"
#include "views/colour/background_picture.h"
#include "views/colour/chromaticity_diagram.h"

namespace {

// Fringes of different height and order.
std::vector<vexa::ReflectanceSpectrum> Spectra(int count) {
  std::vector<vexa::ReflectanceSpectrum> spectra(static_cast<std::size_t>(count));
  int i = 0;
  for (vexa::ReflectanceSpectrum& spectrum : spectra) {
    ++i;
    for (int nm = 440; nm <= 840; ++nm) {
      spectrum[nm] = 5.0 + (i % 40) * 0.1 * std::sin(nm * 0.001 * (i % 97 + 1));
    }
  }
  return spectra;
}

void TenThousandSpectra(benchmark::State& state) {
  const std::vector<vexa::ReflectanceSpectrum> spectra = Spectra(10000);
  const vexa::ColourSettings settings;
  while (state.KeepRunning()) {
    for (const vexa::ReflectanceSpectrum& spectrum : spectra) {
      vexa::ColourResult colour;
      benchmark::DoNotOptimize(vexa::CalcColour(spectrum, settings, colour));
      benchmark::DoNotOptimize(vexa::AverageReflectance(spectrum, 440, 840, colour.Rm));
      benchmark::DoNotOptimize(colour);
    }
  }
}
BENCHMARK(TenThousandSpectra)->Unit(benchmark::kMillisecond);

void BackgroundPoints(benchmark::State& state) {
  while (state.KeepRunning()) {
    vexa::DiagramBackground background;
    while (background.Step(vexa::BackgroundPicture::kPixelsPerTurn)) {
    }
    benchmark::DoNotOptimize(background.Points().data());
  }
}
BENCHMARK(BackgroundPoints)->Unit(benchmark::kMillisecond);

// The background in a diagram on the screen, from the request to the last drawing. Beside the whole
// time: the longest that the event loop was kept from its next event. The argument is the side of
// the diagram.
void BackgroundInTheWidget(benchmark::State& state) {
  vexa::bench::SilentMessages messages;
  double longestMs = 0.0;
  while (state.KeepRunning()) {
    state.PauseTiming();
    auto picture = std::make_shared<vexa::BackgroundPicture>(messages);
    vexa::VEXATYPE data;
    data.display.xyMode = false;
    vexa::ChromaticityDiagram diagram(picture);
    diagram.resize(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)));
    diagram.ShowSlots(data, 1);
    diagram.show();
    QApplication::processEvents();
    data.display.xyMode = true;
    diagram.ShowSlots(data, 1);
    state.ResumeTiming();
    // One turn more after the last pixels, which puts them on the screen.
    for (bool complete = false; !complete;) {
      complete = picture->IsComplete();
      QElapsedTimer turn;
      turn.start();
      QApplication::processEvents();
      longestMs = std::max(longestMs, static_cast<double>(turn.nsecsElapsed()) / 1e6);
    }
  }
  state.counters["longest_ms"] = longestMs;
}
BENCHMARK(BackgroundInTheWidget)->Arg(280)->Arg(560)->Unit(benchmark::kMillisecond);

}  // namespace

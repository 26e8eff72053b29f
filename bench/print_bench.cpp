// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "measurement/evaluation.h"
#include "support/ten_slots.h"
#include "views/paper/current_printer.h"
#include "views/print/report.h"

namespace {

// Graph, tables and all 401 wavelengths of ten judged slots, from the state to the file.
void ReportOfTenSlots(benchmark::State& state) {
  vexa::VEXATYPE data;
  vexa::bench::FillSlots(data);
  data.standard.averageReflectance.enabled = true;
  vexa::EvaluateAgain(data);
  const vexa::ReportRequest request = vexa::UsualReport(data, {2026, 3, 9});
  const QTemporaryDir directory;
  while (state.KeepRunning()) {
    if (!vexa::WritePdf(directory.filePath(QStringLiteral("report.pdf")), {},
                        vexa::PageLayoutOf({}), vexa::MakeReport(data, request))) {
      state.SkipWithError("not written");
      break;
    }
  }
}
BENCHMARK(ReportOfTenSlots)->Unit(benchmark::kMillisecond);

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "files/data_file.h"
#include "support/silent_messages.h"
#include "support/ten_slots.h"

namespace {

void WriteTenSlots(benchmark::State& state) {
  const QTemporaryDir directory;
  vexa::VEXATYPE slots10;
  vexa::bench::FillSlots(slots10);
  const QString path = directory.filePath(QStringLiteral("a.csv"));
  while (state.KeepRunning()) {
    if (!vexa::WriteDataFile(path, vexa::DataFileLayout::kCsv, slots10)) {
      state.SkipWithError("not written");
    }
  }
}
BENCHMARK(WriteTenSlots)->Unit(benchmark::kMillisecond);

// Reading with the evaluation of all ten slots.
void ReadTenSlots(benchmark::State& state) {
  const QTemporaryDir directory;
  vexa::VEXATYPE slots10;
  vexa::bench::FillSlots(slots10);
  const QString path = directory.filePath(QStringLiteral("a.csv"));
  vexa::bench::SilentMessages messages;
  if (!vexa::WriteDataFile(path, vexa::DataFileLayout::kCsv, slots10)) {
    state.SkipWithError("not written");
  }
  while (state.KeepRunning()) {
    if (!vexa::ReadCsvDataFile(path, slots10, messages)) {
      state.SkipWithError("not read");
    }
  }
}
BENCHMARK(ReadTenSlots)->Unit(benchmark::kMillisecond);

}  // namespace

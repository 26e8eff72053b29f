// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "files/data_file.h"
#include "files/journal.h"
#include "measurement/session.h"
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
  vexa::Session session(directory.path());
  if (!vexa::WriteDataFile(path, vexa::DataFileLayout::kCsv, slots10)) {
    state.SkipWithError("not written");
  }
  while (state.KeepRunning()) {
    const auto content = vexa::ReadCsvDataFile(path);
    if (content) {
      session.LoadSlots(vexa::SlotsWith(*content, {}), path, {});
    } else {
      state.SkipWithError("not read");
    }
  }
}
BENCHMARK(ReadTenSlots)->Unit(benchmark::kMillisecond);

// A slot that was measured anew: what has changed is found among ten, written, and on the disk.
void AppendSlotToJournal(benchmark::State& state) {
  const QTemporaryDir directory;
  vexa::VEXATYPE slots10;
  vexa::bench::FillSlots(slots10);
  vexa::Journal journal(directory.path());
  vexa::SessionImage written = vexa::TakeImage(slots10);
  while (state.KeepRunning()) {
    slots10.Slot(5)->reflectance[440] += 1.0;
    const vexa::SessionImage now = vexa::TakeImage(slots10);
    if (!journal.Append(vexa::ChangeRecord(written, now))) {
      state.SkipWithError("not written");
    }
    written = now;
  }
}
BENCHMARK(AppendSlotToJournal)->Unit(benchmark::kMillisecond)->UseRealTime();

void FindNoChangeInSession(benchmark::State& state) {
  vexa::VEXATYPE slots10;
  vexa::bench::FillSlots(slots10);
  const vexa::SessionImage written = vexa::TakeImage(slots10);
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(vexa::TakeImage(slots10) == written);
  }
}
BENCHMARK(FindNoChangeInSession)->Unit(benchmark::kMillisecond);

}  // namespace

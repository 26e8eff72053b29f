// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <cmath>

#include "files/data_file.h"
#include "files/journal.h"

namespace {

class Silence : public vexa::MessageService {
 public:
  vexa::MessageResult MsgCall(const QString&, std::int16_t, const QString&) override {
    return vexa::MessageResult::kOk;
  }
  void Beep() override {}
};

vexa::VEXATYPE TenSlots() {
  vexa::VEXATYPE state;
  for (int slot = 1; slot <= vexa::kSlotCount; ++slot) {
    for (int nm = 440; nm <= 840; ++nm) {
      state.Slot(slot)->reflectance[nm] = 4.0 + std::sin(nm * 0.013 * slot);
    }
    state.Slot(slot)->valid = true;
  }
  return state;
}

void WriteTenSlots(benchmark::State& state) {
  const QTemporaryDir directory;
  const vexa::VEXATYPE slots10 = TenSlots();
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
  vexa::VEXATYPE slots10 = TenSlots();
  const QString path = directory.filePath(QStringLiteral("a.csv"));
  Silence messages;
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

// A slot that was measured anew: what has changed is found among ten, written, and on the disk.
void AppendSlotToJournal(benchmark::State& state) {
  const QTemporaryDir directory;
  vexa::VEXATYPE slots10 = TenSlots();
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
  const vexa::VEXATYPE slots10 = TenSlots();
  const vexa::SessionImage written = vexa::TakeImage(slots10);
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(vexa::TakeImage(slots10) == written);
  }
}
BENCHMARK(FindNoChangeInSession)->Unit(benchmark::kMillisecond);

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the figures of the record store. Usage: records_bench [ROWS [URI]]
//   ROWS: samples of the largest store (default 100000); URI: also the rows a second to that server
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include "records/record_builder.h"
#include "records/record_store.h"
#include "records/shared_store.h"

namespace vexa {
namespace {

constexpr int kSamplesOfALot = 300;
constexpr int kSamplesOfAShift = 2000;

/// A sample that differs from every other in its number, its time and the noise of its spectra.
class Day {
 public:
  Day() {
    Fill(state_.background, 100.0);
    Fill(state_.reference, 3000.0);
    state_.backgroundMeasured = state_.referenceMeasured = true;
    state_.backgroundTaken = state_.referenceTaken = ConditionsNow(state_.instrument, kStart);
    std::ranges::fill(state_.referenceReflectance.Values(), 4.0);
    state_.Slot(1)->valid = true;
  }

  QList<Row> Next() {
    Fill(state_.sample, 1000.0);
    MeasurementSlot& slot = *state_.Slot(1);
    Fill(slot.reflectance, 1.0);
    slot.judgement.groups[0] = {number_ % 50 != 0, 0.25};
    slot.info.sampleNumber = QStringLiteral("LENS-%1").arg(number_, 6, 10, QChar(u'0'));
    slot.info.measuredAt = kStart.addSecs(20 * number_);
    RecordContext context;
    context.station = QStringLiteral("line 1");
    context.lot = QStringLiteral("LOT-%1").arg(number_ / kSamplesOfALot);
    context.recipe = QStringLiteral("lens.json");
    context.operatorName = QStringLiteral("山田");
    ++number_;
    return MeasuredSampleOf(state_, 1, context)->Rows();
  }

 private:
  template <typename Spectrum>
  void Fill(Spectrum& spectrum, double level) {
    for (double& value : spectrum.Values()) {
      value = level + noise_(random_);
    }
  }

  inline static const QDateTime kStart{QDate(2026, 11, 21), QTime(8, 0)};
  VEXATYPE state_;
  std::mt19937 random_{1};
  std::uniform_real_distribution<double> noise_{0.0, 1.0};
  int number_ = 0;
};

template <typename Task>
double MedianMs(int times, const Task& task) {
  std::vector<double> all;
  for (int i = 0; i < times; ++i) {
    QElapsedTimer timer;
    timer.start();
    task();
    all.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
  }
  std::ranges::sort(all);
  return all[all.size() / 2];
}

long ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  return open ? file.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE) / 1024 : 0;
}

double SearchMs(const RecordStore& store, const RecordQuery& query, qsizetype expected) {
  return MedianMs(9, [&] {
    const Answer<QList<RecordSummary>> found = store.Search(query);
    if (!found || found.value.size() != expected) {
      std::fprintf(stderr, "records_bench: %lld found, not %lld\n", found.value.size(), expected);
      std::exit(1);
    }
  });
}

void PrintSearches(const RecordStore& store, int samples) {
  RecordQuery lot;
  lot.lot = QStringLiteral("LOT-%1").arg(samples / kSamplesOfALot / 2);
  lot.limit = kSamplesOfALot;
  RecordQuery rare;
  rare.samplePart = QStringLiteral("-%1").arg(samples / 3, 6, 10, QChar(u'0'));
  RecordQuery none;
  none.samplePart = QStringLiteral("nowhere");
  RecordQuery failed;
  failed.verdict = Verdict::kNotGood;
  RecordQuery deep;
  deep.limit = samples / 2;
  deep.after = store.Search(deep).value.last();
  deep.limit = 100;
  std::printf("| %d | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f |\n", samples,
              SearchMs(store, lot, std::min(samples, kSamplesOfALot)), SearchMs(store, rare, 1),
              SearchMs(store, none, 0), SearchMs(store, failed, std::min(samples / 50, 100)),
              SearchMs(store, {}, 100), SearchMs(store, deep, 100));
  std::fflush(stdout);
}

void Fail(const char* what, StoreFault fault) {
  if (fault != StoreFault::kNone) {
    std::fprintf(stderr, "records_bench: %s failed (%d)\n", what, static_cast<int>(fault));
    std::exit(1);
  }
}

// A shift of one lot, one sample after the other.
void AppendOneByOne(const QString& path) {
  RecordStore store;
  Fail("opening", store.Open(path, RecordStore::Mode::kWrite));
  Day day;
  const auto append = [&store, &day] { Fail("appending", store.Append(day.Next()).fault); };
  (void)MedianMs(200, append);
  const long before = ResidentKiB();
  const double appendMs = MedianMs(kSamplesOfAShift, append);
  std::printf(
      "one sample into the store and on the disk: %.1f ms (median of %d), memory grown by"
      " %ld KiB\n\n",
      appendMs, kSamplesOfAShift, ResidentKiB() - before);
}

void Bench(int largest, const QString& uri) {
  const QTemporaryDir directory(QDir::currentPath() + QStringLiteral("/records_bench-XXXXXX"));
  AppendOneByOne(directory.filePath(QStringLiteral("shift.db")));
  const QString path = directory.filePath(QStringLiteral("records.db"));
  RecordStore store;
  Fail("opening", store.Open(path, RecordStore::Mode::kWrite));
  Day day;
  int samples = 0;
  std::printf(
      "| samples | a lot of 300, ms | one by part of its number, ms | a part that is nowhere,"
      " ms | NG, first 100, ms | first page, ms | page in the middle, ms |\n"
      "|---|---|---|---|---|---|---|\n");
  for (int size = 1000; size <= largest; size *= 10) {
    while (samples < size) {
      QList<Row> rows;
      for (int i = 0; i < std::min(500, size - samples); ++i) {
        rows << day.Next();
      }
      samples += static_cast<int>(std::min(500, size - samples));
      Fail("appending", store.Append(rows).fault);
    }
    PrintSearches(store, samples);
  }
  QElapsedTimer timer;
  timer.start();
  const Answer<ChainCheck> check = store.Verify();
  Fail("verifying", check.fault);
  std::printf("\nverify: %.1f s for %lld rows\n", static_cast<double>(timer.elapsed()) / 1e3,
              check.value.rows);
  const double bytes = static_cast<double>(QFileInfo(path).size());
  std::printf("bytes a sample: %.0f\n", bytes / samples);
  std::fflush(stdout);
  if (!uri.isEmpty()) {
    SharedStore shared;
    Fail("reaching the server", shared.Open(uri));
    timer.start();
    const SharedStatus status =
        shared.Send(store, [](const SharedStatus& soFar) { return soFar.sent < 20000; });
    Fail("sending", status.fault);
    std::printf("to the shared store: %.0f rows a second\n",
                1e3 * static_cast<double>(status.sent) / static_cast<double>(timer.elapsed()));
  }
}

}  // namespace
}  // namespace vexa

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  vexa::Bench(arguments.size() > 1 ? arguments[1].toInt() : 100000,
              arguments.size() > 2 ? arguments[2] : QString());
  return 0;
}

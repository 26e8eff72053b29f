// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the figures of the record store. Usage: records_bench [ROWS [URI]]
//   ROWS: samples of the largest store (default 100000); URI: also the rows a second to that server
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "records/record_store.h"
#include "records/record_value.h"
#include "records/shared_store.h"
#include "support/measuring.h"
#include "support/recorded_day.h"

namespace vexa {
namespace {

using bench::Day;
using bench::kSamplesOfALot;
using bench::MedianMs;
using bench::ResidentKiB;

constexpr int kSamplesOfAShift = 2000;

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

// What a control chart of the newest records takes to be read.
void PrintSeries(const RecordSource& source, const char* where) {
  constexpr int kPoints = 10000;
  RecordQuery query;
  query.limit = kPoints;
  for (const Quantity quantity : {Quantity::kLuminousReflectance, Quantity::kReflectance}) {
    qsizetype points = 0;
    const double ms = MedianMs(5, [&] {
      points = static_cast<qsizetype>(LoadSeries(source, query, {quantity}).value.points.size());
    });
    std::printf("%s of %lld records out of the %s store: %.0f ms\n",
                qPrintable(QuantityKey(quantity)), static_cast<long long>(points), where, ms);
  }
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
  PrintSeries(store, "local");
  if (!uri.isEmpty()) {
    SharedStore shared;
    Fail("reaching the server", shared.Open(uri));
    timer.start();
    const SharedStatus status =
        shared.Send(store, [](const SharedStatus& soFar) { return soFar.sent < 20000; });
    Fail("sending", status.fault);
    std::printf("to the shared store: %.0f rows a second\n",
                1e3 * static_cast<double>(status.sent) / static_cast<double>(timer.elapsed()));
    PrintSeries(shared, "shared");
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

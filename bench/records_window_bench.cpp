// SPDX-License-Identifier: GPL-3.0-or-later
// Prints how long the window of the records takes to show its first page, and what scrolling costs.
// Usage: records_window_bench [ROWS]: samples of the largest store (default 100000)
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

#include "records/record_store.h"
#include "support/measuring.h"
#include "support/recorded_day.h"
#include "support/silent_messages.h"
#include "views/common/theme.h"
#include "views/records/records_window.h"

namespace vexa::bench {
namespace {

/// Asks for nothing.
class NoFiles : public FileDialogs {
 public:
  QCoro::Task<std::optional<QString>> AskOpen(QString /*title*/, QString /*filter*/) override {
    co_return std::nullopt;
  }
  QCoro::Task<std::optional<SaveChoice>> AskSave(QString /*title*/, QString /*filter*/,
                                                 QString /*proposed*/) override {
    co_return std::nullopt;
  }
};

/// The window over a store, as the menu opens it.
class Opened {
 public:
  explicit Opened(const QString& path) : reader_(path, {}), preferences_(QFileInfo(path).path()) {
    window_ = std::make_unique<RecordsWindow>(RecordsWindowParts{
        reader_, session_, desk_, messages_, dialogs_, preferences_, path, {}, {}});
    window_->show();
    table_ = window_->findChild<QTableView*>();
    WaitForMoreThan(0);
    (void)window_->grab();
  }

  [[nodiscard]] int Rows() const { return table_->model()->rowCount(); }

  // Drags the bar to the end, until so many rows were read.
  void ScrollTo(int rows) {
    while (Rows() < rows) {
      const int before = Rows();
      table_->verticalScrollBar()->setValue(table_->verticalScrollBar()->maximum());
      WaitForMoreThan(before);
    }
  }

 private:
  void WaitForMoreThan(int rows) {
    while (Rows() <= rows) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QApplication::processEvents();
  }

  SilentMessages messages_;
  NoFiles dialogs_;
  Session session_{QDir::currentPath()};
  InstrumentDesk desk_{session_, messages_, [](const VEXATYPE&) { return nullptr; }};
  RecordReader reader_;
  ProgramPreferences preferences_;
  std::unique_ptr<RecordsWindow> window_;
  QTableView* table_ = nullptr;
};

void Fill(RecordStore& store, Day& day, int samples) {
  while (samples > 0) {
    QList<Row> rows;
    for (int i = 0; i < 500 && samples > 0; ++i, --samples) {
      rows << day.Next();
    }
    if (!store.Append(rows)) {
      std::fprintf(stderr, "records_window_bench: the store takes nothing\n");
      std::exit(1);
    }
  }
}

void Bench(int largest) {
  const QTemporaryDir directory(QDir::currentPath() + QStringLiteral("/records_bench-XXXXXX"));
  const QString path = directory.filePath(QStringLiteral("records.db"));
  RecordStore store;
  if (store.Open(path, RecordStore::Mode::kWrite) != StoreFault::kNone) {
    std::exit(1);
  }
  Day day;
  int samples = 0;
  std::printf(
      "| samples | window with its first page, ms | a page while scrolling, ms | memory grown by"
      " 4,000 rows, KiB |\n|---|---|---|---|\n");
  for (int size = 1000; size <= largest; size *= 10) {
    Fill(store, day, size - samples);
    samples = size;
    const double openMs = MedianMs(9, [&path] { const Opened opened(path); });
    Opened opened(path);
    const long before = ResidentKiB();
    const int first = opened.Rows();
    const int last = std::min(size, first + 4000);
    QElapsedTimer timer;
    timer.start();
    opened.ScrollTo(last);
    const double pages = static_cast<double>(last - first) / first;
    std::printf("| %d | %.1f | %.1f | %ld |\n", size, openMs,
                static_cast<double>(timer.elapsed()) / pages, ResidentKiB() - before);
    std::fflush(stdout);
  }
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  vexa::ApplyTheme(application);
  const QStringList arguments = QApplication::arguments();
  vexa::bench::Bench(arguments.size() > 1 ? arguments[1].toInt() : 100000);
  return 0;
}

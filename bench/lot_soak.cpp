// SPDX-License-Identifier: GPL-3.0-or-later
// Measures one lot in the window of the lots, lens after lens by the Return key, on the virtual
// instrument, and looks at the memory: after the first two hundred lenses it stays.
// Usage: lot_soak [LENSES]; exit status 1 when it grew or a lens was not measured.
#include <unistd.h>

#include <QApplication>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/demonstration.h"
#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "records/lot_tally.h"
#include "records/record_settings.h"
#include "records/record_store.h"
#include "views/common/theme.h"
#include "views/lot/lot_window.h"

namespace vexa {
namespace {

constexpr int kWarmUp = 200;
constexpr int kPatienceMs = 30000;
// Each lens that is remembered takes its number and the id of its row.
constexpr double kLargestGrowthKiB = 4096.0;

double ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  const double pages = open ? file.readAll().split(' ').value(1).toDouble() : 0.0;
  return pages * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1024.0;
}

void Settle(VEXA& window) {
  QElapsedTimer timer;
  timer.start();
  do {
    QApplication::processEvents();
  } while (!window.Desk().IsIdle() && timer.elapsed() < kPatienceMs);
}

void Return(VEXA& window, LotWindow& lots) {
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(lots.findChild<QLineEdit*>(QStringLiteral("LotNumber")), &key);
  Settle(window);
}

int Soak(int lenses) {
  const QTemporaryDir directory;
  Demonstration demonstration(directory.path(), false);
  if (!demonstration.StartInstrument()) {
    return 1;
  }
  VEXA window({demonstration.Messages(), demonstration.Dialogs(), QDateTime::currentDateTime,
               [](const VEXATYPE& state) {
                 return std::make_unique<frmComH8Ctrl>(
                     [programDirectory = state.programDirectory](int port) {
                       return SerialPortPath(programDirectory, port);
                     });
               }},
              directory.path());
  window.show();
  QCoro::waitFor(window.Load());
  window.Commands().lotMeasurement->trigger();
  auto& lots = *window.findChild<LotWindow*>();
  lots.findChild<QLineEdit*>(QStringLiteral("LotName"))->setText(QStringLiteral("soak"));
  lots.findChild<QPushButton*>(QStringLiteral("LotStart"))->click();
  Settle(window);
  Return(window, lots);  // background
  Return(window, lots);  // reference
  double warm = 0.0;
  for (int lens = 1; lens <= lenses; ++lens) {
    Return(window, lots);
    if (lens == std::min(kWarmUp, lenses / 2)) {
      warm = ResidentKiB();
    }
    if (lens % 200 == 0) {
      std::printf("%8d  lenses, %.0f KiB\n", lens, ResidentKiB());
      std::fflush(stdout);
    }
  }
  const double growth = ResidentKiB() - warm;
  RecordStore store;
  const bool open =
      store.Open(RecordStorePath(directory.path()), RecordStore::Mode::kRead) == StoreFault::kNone;
  const auto stored = open ? LotRows(store, QStringLiteral("soak")).value.size() : 0;
  std::printf("%8d  lenses, %lld in the store; memory %.0f KiB after warm-up, %+.0f KiB\n", lenses,
              static_cast<long long>(stored), warm, growth);
  return stored == lenses && growth < kLargestGrowthKiB ? 0 : 1;
}

}  // namespace
}  // namespace vexa

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  vexa::ApplyTheme(application);
  return vexa::Soak(argc > 1 ? std::atoi(argv[1]) : 2000);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Measures again and again in the main window on the virtual instrument, and looks at the memory:
// after the first hundred measurements, in which every slot and view has been drawn, it stays.
// Usage: window_soak [MEASUREMENTS]; exit status 1 when it grew or a measurement failed.
#include <unistd.h>

#include <QApplication>
#include <QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "views/common/file_dialogs.h"
#include "views/common/theme.h"

namespace {

constexpr int kPatienceMs = 10000;
constexpr int kWarmUp = 100;
// A cache that fills late may take a few MiB, once; what every measurement keeps comes to more.
constexpr double kLargestGrowthKiB = 8192.0;

// Says yes to everything: a slot may be overwritten.
class Yes : public vexa::MessageService {
 public:
  void Tell(const vexa::MessageCall& /*call*/) override {}
  QCoro::Task<vexa::MessageResult> Ask(vexa::MessageCall call) override {
    co_return vexa::AgreeingAnswer(vexa::CatalogueEntry(call.id).buttons);
  }
  void Beep() override {}
};

class NoFiles : public vexa::FileDialogs {
 public:
  std::optional<QString> AskOpen(const QString& /*title*/, const QString& /*filter*/) override {
    return std::nullopt;
  }
  std::optional<vexa::SaveChoice> AskSave(const QString& /*title*/, const QString& /*filter*/,
                                          const QString& /*proposed*/) override {
    return std::nullopt;
  }
};

double ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  const double pages = open ? file.readAll().split(' ').value(1).toDouble() : 0.0;
  return pages * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1024.0;
}

// Presses the button and lets the window work until it takes commands again.
bool Measure(vexa::VEXA& window, const QString& button) {
  window.findChild<QPushButton*>(button)->click();
  QElapsedTimer timer;
  timer.start();
  do {
    QApplication::processEvents(QEventLoop::AllEvents);
  } while (!window.Commands().openFile->isEnabled() && timer.elapsed() < kPatienceMs);
  return window.Commands().openFile->isEnabled();
}

}  // namespace

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  vexa::ApplyTheme(application);
  const int measurements = argc > 1 ? std::atoi(argv[1]) : 2000;
  const QTemporaryDir directory;
  QProcess instrument;
  instrument.start(
      QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("vexa-simulator")),
      {QStringLiteral("--dir"), directory.path(), QStringLiteral("--pace"),
       QStringLiteral("none")});
  int wrong = instrument.waitForReadyRead(kPatienceMs) ? 0 : 1;

  Yes messages;
  NoFiles dialogs;
  double warm = 0.0;
  double growth = 0.0;
  {
    vexa::VEXA window({messages, dialogs, QDateTime::currentDateTime,
                       [](const vexa::VEXATYPE& state) {
                         return std::make_unique<vexa::frmComH8Ctrl>(
                             [programDirectory = state.programDirectory](int port) {
                               return vexa::SerialPortPath(programDirectory, port);
                             });
                       }},
                      directory.path());
    window.show();
    QCoro::waitFor(window.Load());
    wrong += Measure(window, QStringLiteral("Background")) ? 0 : 1;
    wrong += Measure(window, QStringLiteral("Reference")) ? 0 : 1;
    const QList<QAction*> views = window.Commands().views->actions();
    for (int number = 0; number < measurements && wrong == 0; ++number) {
      views[number % views.size()]->trigger();
      const int slot = 1 + number % vexa::kSlotCount;
      wrong +=
          Measure(window, QStringLiteral("Mes%1").arg(slot)) && window.State().Slot(slot)->valid
              ? 0
              : 1;
      if (number == std::min(kWarmUp, measurements / 2)) {
        warm = ResidentKiB();
      }
      if (number % 100 == 99) {
        std::printf("%8d  measurements, %.0f KiB\n", number + 1, ResidentKiB());
        std::fflush(stdout);
      }
    }
    growth = ResidentKiB() - warm;
    window.close();
    // It goes once the instrument is at rest.
    while (window.isVisible()) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
  }
  instrument.terminate();
  instrument.waitForFinished(kPatienceMs);
  std::printf("%8d  measurements, %d wrong; memory %.0f KiB after warm-up, %+.0f KiB\n",
              measurements, wrong, warm, growth);
  return wrong == 0 && growth < kLargestGrowthKiB ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Measures again and again in the main window on the virtual instrument, opens and closes windows,
// file dialogs and messages meanwhile, and looks at the memory: after the first three
// hundred measurements, in which every slot, view and dialog has been drawn, it stays.
// Usage: window_soak [MEASUREMENTS]; exit status 1 when it grew or a measurement failed.
#include <unistd.h>

#include <QApplication>
#include <QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <utility>

#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "views/common/file_dialogs.h"
#include "views/common/original_msg_frm.h"
#include "views/common/theme.h"
#include "views/common/window_messages.h"

namespace {

constexpr int kPatienceMs = 10000;
constexpr int kWarmUp = 300;
// A cache that fills late may take a few MiB, once; what every measurement keeps comes to more.
constexpr double kLargestGrowthKiB = 8192.0;

double ResidentKiB() {
  QFile file(QStringLiteral("/proc/self/statm"));
  const bool open = file.open(QIODevice::ReadOnly);
  const double pages = open ? file.readAll().split(' ').value(1).toDouble() : 0.0;
  return pages * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1024.0;
}

// Stands for the user at the dialogs: agrees to messages, names a file or cancels by turns, and
// closes every other window.
class Hands {
 public:
  explicit Hands(const QString& file) : file_(file) {}

  /// One turn of the event loop, and what is in front then is dealt with; false when nothing was.
  bool Work() {
    QApplication::processEvents(QEventLoop::AllEvents);
    // Nothing is deleted later where no event loop runs.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr) {
      return false;
    }
    if (auto* message = qobject_cast<vexa::OriginalMsgFrm*>(front)) {
      auto* yes = message->findChild<QPushButton*>(QStringLiteral("btnYes"));
      auto* ok = message->findChild<QPushButton*>(QStringLiteral("btnOK"));
      (yes->isVisible() ? yes : ok)->click();
    } else if (auto* files = qobject_cast<QFileDialog*>(front);
               files != nullptr && number_ % 2 == 0) {
      files->selectFile(file_);
      static_cast<QDialog*>(files)->done(QDialog::Accepted);
    } else {
      front->close();
    }
    ++number_;
    return true;
  }

  [[nodiscard]] int Number() const { return number_; }

 private:
  QString file_;
  int number_ = 0;  ///< of dialogs dealt with
};

// Presses the button, opens a dialog beside the measurement, and goes on until both are done.
bool Measure(vexa::VEXA& window, const QString& button, Hands& hands, QAction* beside) {
  window.findChild<QPushButton*>(button)->click();
  QElapsedTimer timer;
  timer.start();
  bool busy = true;
  while (busy && timer.elapsed() < kPatienceMs) {
    const bool handled = hands.Work();
    const bool measuring = !window.Desk().IsIdle();
    if (measuring && beside != nullptr) {
      std::exchange(beside, nullptr)->trigger();
    }
    busy = handled || measuring || QApplication::activeModalWidget() != nullptr;
  }
  return !busy;
}

// What opens a window, a file dialog or a message while something is measured.
QList<QAction*> Besides(const vexa::MenuCommands& menu) {
  return {
      menu.saveFileAs,      menu.saveEnvironmentAs, menu.printSettings,     menu.print,
      menu.displaySettings, menu.settingsList,      menu.standards,         menu.thicknessSettings,
      menu.wavelengthList,  menu.colourDifference,  menu.referenceSettings, menu.calibration,
      menu.version};
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

  vexa::WindowMessages messages;
  vexa::WindowFileDialogs dialogs;
  Hands hands(directory.filePath(QStringLiteral("soak")));
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
    messages.SetWindow(&window);
    dialogs.SetWindow(&window);
    window.show();
    QCoro::waitFor(window.Load());
    const QList<QAction*> besides = Besides(window.Commands());
    wrong += Measure(window, QStringLiteral("Background"), hands, nullptr) ? 0 : 1;
    wrong += Measure(window, QStringLiteral("Reference"), hands, nullptr) ? 0 : 1;
    const QList<QAction*> views = window.Commands().views->actions();
    for (int number = 0; number < measurements && wrong == 0; ++number) {
      views[number % views.size()]->trigger();
      const int slot = 1 + number % vexa::kSlotCount;
      wrong += Measure(window, QStringLiteral("Mes%1").arg(slot), hands,
                       besides[number % besides.size()]) &&
                       window.State().Slot(slot)->valid
                   ? 0
                   : 1;
      if (number == std::min(kWarmUp, measurements / 2)) {
        warm = ResidentKiB();
      }
      if (number % 100 == 99) {
        std::printf("%8d  measurements, %d dialogs, %.0f KiB\n", number + 1, hands.Number(),
                    ResidentKiB());
        std::fflush(stdout);
      }
    }
    growth = ResidentKiB() - warm;
    window.close();
    // It goes once the instrument is at rest.
    while (window.isVisible()) {
      hands.Work();
    }
  }
  instrument.terminate();
  instrument.waitForFinished(kPatienceMs);
  std::printf("%8d  measurements, %d dialogs, %d wrong; memory %.0f KiB after warm-up, %+.0f KiB\n",
              measurements, hands.Number(), wrong, warm, growth);
  return wrong == 0 && growth < kLargestGrowthKiB ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// A measuring day of the real main window on a virtual instrument: measuring_day DIR SEED STEPS.
// DIR holds the instrument's link. What a crash has left is restored first. Then STEPS random steps
// follow, and the day ends as it should. Each step is told on standard output before it begins
// ("begin STEP", the places of the session that it may change) and after it ("done", a hash of
// every place), so that whoever kills the program knows what must have outlived it.
#include <QApplication>
#include <QCryptographicHash>
#include <QLineEdit>
#include <QPushButton>
#include <cstdio>
#include <random>

#include "app/vexa.h"
#include "files/session_image.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "support/prepared_files.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

// Says yes, and tells what was asked or told besides the questions of every step.
class Answers : public MessageService {
 public:
  void Tell(const MessageCall& call) override { Print("told", call); }
  QCoro::Task<MessageResult> Ask(MessageCall call) override {
    const MessageButtons buttons = CatalogueEntry(call.id).buttons;
    if (buttons == MessageButtons::kYesNoCancel) {
      Print("asked", call);
    }
    co_return AgreeingAnswer(buttons);
  }
  void Beep() override {}

 private:
  static void Print(const char* what, const MessageCall& call) {
    std::printf("%s %s\n", what, qUtf8Printable(MessageText(call).replace(u'\r', u'|')));
  }
};

void TellState(const char* what, const VEXATYPE& state) {
  std::printf("%s", what);
  for (const QByteArray& entry : TakeImage(state)) {
    const QByteArray hash = QCryptographicHash::hash(entry, QCryptographicHash::Sha256);
    std::printf(" %s", hash.toHex().first(16).constData());
  }
  std::printf("\n");
  std::fflush(stdout);
}

QCoro::Task<> Press(VEXA& window, QString button, std::string places) {
  std::printf("begin %s %s\n", qUtf8Printable(QString(button).remove(u' ')), places.c_str());
  std::fflush(stdout);
  window.findChild<QPushButton*>(button)->click();
  co_await window.Desk().UntilIdle();
}

void TypeInformation(VEXA& window, int slot, const QString& text) {
  std::printf("begin Information %d\n", slot + 1);
  std::fflush(stdout);
  window.Commands().sampleInformation->trigger();
  const QWidget* dialog = QApplication::activeModalWidget();
  dialog->findChild<QLineEdit*>(QStringLiteral("SampNo_txt%1").arg(slot))->setText(text);
  dialog->findChild<QPushButton*>(QStringLiteral("OK_b"))->click();
}

QCoro::Task<> Step(VEXA& window, std::mt19937& random) {
  const int choice = std::uniform_int_distribution(0, 19)(random);
  const int slot = std::uniform_int_distribution(1, kSlotCount)(random);
  if (choice == 0 || !window.State().backgroundMeasured) {
    co_await Press(window, QStringLiteral("Background"), "0");
  } else if (choice == 1 || !window.State().referenceMeasured) {
    co_await Press(window, QStringLiteral("Reference"), "1");
  } else if (choice == 2) {
    co_await Press(window, QStringLiteral("AllClear"), "2 3 4 5 6 7 8 9 10 11");
  } else if (choice < 6) {
    TypeInformation(window, slot, QStringLiteral("試料 %1").arg(random()));
  } else {
    co_await Press(window, QStringLiteral("Mes%1").arg(slot), std::to_string(slot + 1));
  }
  TellState("done", window.State());
}

QCoro::Task<> Work(VEXA& window, unsigned seed, int steps) {
  co_await window.Load();
  co_await window.OfferSession();
  TellState("ready", window.State());
  std::mt19937 random(seed);
  for (int step = 0; step < steps; ++step) {
    co_await Step(window, random);
  }
  window.close();
}

int Run(const QString& directory, unsigned seed, int steps) {
  Answers messages;
  test::PreparedFiles files;  // none: every file dialog is cancelled
  // Whole seconds, as the sample information shows and so keeps them.
  VEXA window({messages, files,
               [] { return QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch()); },
               [](const VEXATYPE& state) {
                 return std::make_unique<frmComH8Ctrl>(
                     [programDirectory = state.programDirectory](int port) {
                       return SerialPortPath(programDirectory, port);
                     });
               }},
              directory);
  window.show();
  QCoro::waitFor(Work(window, seed, steps));
  std::printf("ended\n");
  return 0;
}

}  // namespace
}  // namespace vexa

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  vexa::ApplyTheme(*qApp);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fprintf(stderr, "usage: measuring_day DIR SEED STEPS\n");
    return 2;
  }
  return vexa::Run(arguments[1], arguments[2].toUInt(), arguments[3].toInt());
}

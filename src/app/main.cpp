// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTimer>
#include <cstdio>
#include <memory>

#include "app/demonstration.h"
#include "app/gallery.h"
#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "views/common/original_msg_frm.h"
#include "views/common/theme.h"

namespace {

std::unique_ptr<vexa::Controller> MakeController(const vexa::VEXATYPE& state) {
  return std::make_unique<vexa::frmComH8Ctrl>([directory = state.programDirectory](int port) {
    return vexa::SerialPortPath(directory, port);
  });
}

int RunDemonstration(const QString& directory, const QString& pictures) {
  vexa::Demonstration demonstration(directory);
  if (!demonstration.StartInstrument()) {
    return 1;
  }
  vexa::VEXA window({demonstration.Messages(), demonstration.Dialogs(), QDateTime::currentDateTime,
                     MakeController},
                    QDir(directory).absolutePath());
  window.show();
  window.Load();
  int status = demonstration.Drive(window);
  if (!pictures.isEmpty() && vexa::Gallery(pictures).Take(window) != 0) {
    status = 1;
  }
  window.close();
  return status;
}

int RunWindow() {
  vexa::WindowMessages messages;
  vexa::WindowFileDialogs dialogs;
  vexa::VEXA window({messages, dialogs, QDateTime::currentDateTime, MakeController},
                    QDir::currentPath());
  messages.SetWindow(&window);
  dialogs.SetWindow(&window);
  window.show();
  QTimer::singleShot(0, &window, [&window] {
    window.Load();
    window.OfferSession();
  });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("vexa"));
  QApplication::setApplicationVersion(QStringLiteral(VEXA_VERSION));
  vexa::ApplyTheme(application);

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Control and analysis program of the VEXA-KT reflectance micro-spectrophotometer."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption demo(
      QStringLiteral("demo"),
      QStringLiteral("Measures five samples on the virtual instrument by itself and leaves "
                     "measurement.csv and window.png in DIR."),
      QStringLiteral("DIR"));
  parser.addOption(demo);
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QStringLiteral("With --demo: leaves a picture of every window and view in DIR."),
      QStringLiteral("DIR"));
  parser.addOption(pictures);
  const bool parsed = parser.parse(QApplication::arguments());
  if (!parsed || !parser.positionalArguments().isEmpty()) {
    std::fprintf(stderr, "vexa: %s\n",
                 parsed ? "takes no arguments but options" : qUtf8Printable(parser.errorText()));
    return 2;
  }
  if (parser.isSet(QStringLiteral("help"))) {
    parser.showHelp();
  }
  if (parser.isSet(QStringLiteral("version"))) {
    parser.showVersion();
  }
  return parser.isSet(demo) ? RunDemonstration(parser.value(demo), parser.value(pictures))
                            : RunWindow();
}

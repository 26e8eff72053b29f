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
#include "measurement/controller_start.h"
#include "views/common/original_msg_frm.h"
#include "views/common/theme.h"

namespace {

vexa::Services MakeServices(vexa::MessageService& messages, vexa::FileDialogs& dialogs) {
  return {messages, dialogs, QDateTime::currentDateTime, [&messages](const vexa::VEXATYPE& state) {
            return vexa::MakeController(state, messages);
          }};
}

int RunDemonstration(const QString& directory, bool gpib, const QString& pictures) {
  vexa::Demonstration demonstration(directory, gpib);
  if (!demonstration.StartInstrument()) {
    return 1;
  }
  vexa::VEXA window(MakeServices(demonstration.Messages(), demonstration.Dialogs()),
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
  vexa::VEXA window(MakeServices(messages, dialogs), QDir::currentPath());
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
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QStringLiteral("With --demo: leaves a picture of every window and view in DIR."),
      QStringLiteral("DIR"));
  const QCommandLineOption gpib(
      QStringLiteral("gpib"),
      QStringLiteral("With --demo: over the control box on the GP-IB instead of the serial port."));
  parser.addOptions({demo, gpib, pictures});
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
  return parser.isSet(demo)
             ? RunDemonstration(parser.value(demo), parser.isSet(gpib), parser.value(pictures))
             : RunWindow();
}

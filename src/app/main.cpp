// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCommandLineParser>
#include <QCoroTask>
#include <QDir>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <memory>

#include "app/demonstration.h"
#include "app/gallery.h"
#include "app/report_command.h"
#include "app/unattended_messages.h"
#include "app/vexa.h"
#include "base/end_signals.h"
#include "base/language.h"
#include "base/translation.h"
#include "files/program_settings_file.h"
#include "measurement/controller_start.h"
#include "views/common/theme.h"
#include "views/common/window_messages.h"

namespace {

using vexa::Text;

vexa::Services MakeServices(vexa::MessageService& messages, vexa::FileDialogs& dialogs) {
  return {messages, dialogs, QDateTime::currentDateTime,
          [](const vexa::VEXATYPE& state) { return vexa::MakeController(state); }};
}

int RunDemonstration(const QString& directory, bool gpib, const QString& pictures) {
  vexa::Demonstration demonstration(directory, gpib);
  if (!demonstration.StartInstrument()) {
    return 1;
  }
  vexa::VEXA window(MakeServices(demonstration.Messages(), demonstration.Dialogs()),
                    QDir(directory).absolutePath());
  // Whatever the screen, or none: all of it in the picture.
  window.resize(1280, 900);
  window.show();
  int status = 1;
  const auto drive = [](vexa::Demonstration& run, vexa::VEXA& driven,
                        const QString& pictureDirectory, int& outcome) -> QCoro::Task<> {
    co_await driven.Load();
    outcome = co_await run.Drive(driven);
    if (!pictureDirectory.isEmpty() && vexa::Gallery(pictureDirectory).Take(driven) != 0) {
      outcome = 1;
    }
    driven.close();
    QApplication::quit();
  };
  QTimer::singleShot(0, &window, [&] { drive(demonstration, window, pictures, status); });
  QApplication::exec();
  return status;
}

int RunWindow(const QList<vexa::MessageCall>& notices) {
  vexa::WindowMessages messages;
  vexa::WindowFileDialogs dialogs;
  vexa::VEXA window(MakeServices(messages, dialogs), QDir::currentPath());
  messages.SetWindow(&window);
  dialogs.SetWindow(&window);
  window.show();
  const vexa::EndSignals endSignals([&window] { window.EndAtOnce(); });
  vexa::TellAll(notices, messages);
  const auto start = [](vexa::VEXA& started) -> QCoro::Task<> {
    co_await started.Load();
    co_await started.OfferSession();
  };
  QTimer::singleShot(0, &window, [&] { start(window); });
  return QApplication::exec();
}

// Only the window itself is nothing without a display; the platform must be set before the
// application is made.
bool NeedsNoDisplay(int argc, char* argv[]) {
  const bool display = qEnvironmentVariableIsSet("DISPLAY") ||
                       qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                       qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  return std::any_of(argv + 1, argv + argc, [display](const char* word) {
    return QByteArray(word).startsWith("--report") || !display;
  });
}

struct Options {
  QCommandLineOption demo{
      QStringLiteral("demo"),
      Text::tr("Measures five samples on the virtual instrument by itself and leaves "
               "measurement.csv and window.png in DIR."),
      QStringLiteral("DIR")};
  QCommandLineOption pictures{
      QStringLiteral("pictures"),
      Text::tr("With --demo: leaves a picture of every window and view in DIR."),
      QStringLiteral("DIR")};
  QCommandLineOption gpib{
      QStringLiteral("gpib"),
      Text::tr("With --demo: over the control box on the GP-IB instead of the serial port.")};
  QCommandLineOption language{
      QStringLiteral("language"),
      Text::tr("Language of the texts: ja or en (default: as chosen in the help menu, else "
               "ja)."),
      QStringLiteral("CODE")};
  QCommandLineOption report{QStringLiteral("report"),
                            Text::tr("Prints the data file FILE as a PDF file, without a window."),
                            QStringLiteral("FILE")};
  QCommandLineOption out{QStringLiteral("out"), Text::tr("The PDF file of --report."),
                         QStringLiteral("FILE.pdf")};
  QCommandLineOption title{QStringLiteral("title"), Text::tr("The title of --report."),
                           QStringLiteral("TEXT")};
  QCommandLineOption operatorName{QStringLiteral("operator"),
                                  Text::tr("The operator named by --report."),
                                  QStringLiteral("NAME")};
};

// What is wrong with the arguments; empty when nothing is.
QString Fault(const QCommandLineParser& parser, const Options& options) {
  if (!parser.positionalArguments().isEmpty()) {
    return QStringLiteral("takes no arguments but options");
  }
  const bool report = parser.isSet(options.report);
  if (report != parser.isSet(options.out)) {
    return QStringLiteral("--report and --out belong together");
  }
  if (report && parser.isSet(options.demo)) {
    return QStringLiteral("--report and --demo exclude each other");
  }
  if (!report && (parser.isSet(options.title) || parser.isSet(options.operatorName))) {
    return QStringLiteral("--title and --operator belong to --report");
  }
  return {};
}

}  // namespace

int main(int argc, char* argv[]) {
  if (NeedsNoDisplay(argc, argv)) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("vexa"));
  QApplication::setApplicationVersion(QStringLiteral(VEXA_VERSION));
  vexa::ApplyTheme(application);
  QStringList arguments = QApplication::arguments();
  const vexa::LanguageRequest request = vexa::TakeLanguageRequest(arguments);
  const vexa::ProgramStart begin = vexa::StartProgram(QDir::currentPath());
  const vexa::Language language = request.language.value_or(begin.settings.language);
  vexa::UseLanguage(language);
  // The toolkit's own dialogs, such as those for files; without its translations they are English.
  QTranslator toolkit;
  if (toolkit.load(QStringLiteral("qtbase_") + vexa::LanguageCode(language),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkit);
  }

  QCommandLineParser parser;
  parser.setApplicationDescription(
      Text::tr("Control and analysis program of the VEXA-KT reflectance micro-spectrophotometer."));
  parser.addHelpOption();
  parser.addVersionOption();
  const Options options;
  parser.addOptions({options.demo, options.gpib, options.pictures, options.report, options.out,
                     options.language, options.title, options.operatorName});
  const bool parsed = parser.parse(arguments);
  const QString fault = !request.fault.isEmpty() ? request.fault
                        : parsed                 ? Fault(parser, options)
                                                 : parser.errorText();
  if (!fault.isEmpty()) {
    vexa::Complain(fault);
    return 2;
  }
  if (parser.isSet(QStringLiteral("help"))) {
    parser.showHelp();
  }
  if (parser.isSet(QStringLiteral("version"))) {
    parser.showVersion();
  }
  if (parser.isSet(options.report)) {
    return vexa::RunReport({.dataFile = parser.value(options.report),
                            .pdfFile = parser.value(options.out),
                            .title = parser.value(options.title),
                            .operatorName = parser.value(options.operatorName)},
                           QDir::currentPath());
  }
  return parser.isSet(options.demo)
             ? RunDemonstration(parser.value(options.demo), parser.isSet(options.gpib),
                                parser.value(options.pictures))
             : RunWindow(begin.notices);
}

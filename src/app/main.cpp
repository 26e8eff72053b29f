// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCommandLineParser>
#include <QCoroTask>
#include <QDir>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/demonstration.h"
#include "app/gallery.h"
#include "app/report_command.h"
#include "app/unattended_messages.h"
#include "app/vexa.h"
#include "base/background_thread.h"
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
    if (!pictureDirectory.isEmpty()) {
      vexa::Gallery gallery(pictureDirectory, driven);
      const int missing = co_await gallery.Take();
      outcome = missing == 0 ? outcome : 1;
    }
    driven.close();
    QApplication::quit();
  };
  QTimer::singleShot(0, &window, [&] { drive(demonstration, window, pictures, status); });
  QApplication::exec();
  return status;
}

int RunWindow(const QList<vexa::MessageCall>& notices, const QString& file) {
  vexa::WindowMessages messages;
  vexa::WindowFileDialogs dialogs;
  vexa::VEXA window(MakeServices(messages, dialogs), QDir::currentPath());
  messages.SetWindow(&window);
  dialogs.SetWindow(&window);
  window.show();
  // Not quit(), which asks every window first: a message may be open that the next one follows.
  const auto end = [](vexa::VEXA& ended) -> QCoro::Task<> {
    co_await ended.EndAtOnce();
    QCoreApplication::exit();
  };
  const vexa::EndSignals endSignals([&window, end] { end(window); });
  vexa::TellAll(notices, messages);
  const auto start = [](vexa::VEXA& started, QString named) -> QCoro::Task<> {
    co_await started.Load();
    co_await started.OfferSession();
    if (!named.isEmpty()) {
      co_await started.OpenFile(QFileInfo(named).absoluteFilePath());
    }
  };
  QTimer::singleShot(0, &window, [&] { start(window, file); });
  return QApplication::exec();
}

// Only the window itself is nothing without a display; the platform must be set before the
// application is made.
bool NeedsNoDisplay(int argc, char* argv[]) {
  const bool display = qEnvironmentVariableIsSet("DISPLAY") ||
                       qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                       qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  return std::any_of(argv + 1, argv + argc, [display](const char* word) {
    const QByteArray option(word);
    return option.startsWith("--report") || (!display && option.startsWith('-'));
  });
}

struct Options {
  QCommandLineOption demo{QStringLiteral("demo"),
                          Text::tr("仮想装置で5個のサンプルを自動で測定し、measurement.csv と "
                                   "window.png を DIR に残します。"),
                          QStringLiteral("DIR")};
  QCommandLineOption pictures{
      QStringLiteral("pictures"),
      Text::tr("--demo とともに：すべての画面と表示の画像を DIR に残します。"),
      QStringLiteral("DIR")};
  QCommandLineOption gpib{
      QStringLiteral("gpib"),
      Text::tr(
          "--demo とともに：シリアルポートの代わりに GP-IB のコントロールボックスで測定します。")};
  QCommandLineOption language{
      QStringLiteral("language"),
      Text::tr("表示言語：ja または en（省略時：ヘルプメニューで選んだもの、なければ ja）。"),
      QStringLiteral("CODE")};
  QCommandLineOption report{QStringLiteral("report"),
                            Text::tr("データファイル FILE を、画面を出さずに PDF にします。"),
                            QStringLiteral("FILE")};
  QCommandLineOption out{QStringLiteral("out"), Text::tr("--report の PDF ファイル。"),
                         QStringLiteral("FILE.pdf")};
  QCommandLineOption title{QStringLiteral("title"), Text::tr("--report のタイトル。"),
                           QStringLiteral("TEXT")};
  QCommandLineOption operatorName{QStringLiteral("operator"), Text::tr("--report の測定者。"),
                                  QStringLiteral("NAME")};
};

// What is wrong with the arguments; empty when nothing is.
QString Fault(const QCommandLineParser& parser, const Options& options) {
  const qsizetype files = parser.positionalArguments().size();
  if (files > 1) {
    return Text::tr("ファイルは一度に 1 つです");
  }
  const bool report = parser.isSet(options.report);
  if (report != parser.isSet(options.out)) {
    return Text::tr("--report と --out は一緒に指定してください");
  }
  if (files > 0 && (report || parser.isSet(options.demo))) {
    return Text::tr("FILE は --report や --demo とともには指定できません");
  }
  if (report && parser.isSet(options.demo)) {
    return Text::tr("--report と --demo は同時に指定できません");
  }
  if (!report && (parser.isSet(options.title) || parser.isSet(options.operatorName))) {
    return Text::tr("--title と --operator は --report とともに指定してください");
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
  vexa::TellTooLargeFilesAsErrors();
  vexa::ApplyTheme(application);
  QStringList arguments = QApplication::arguments();
  const vexa::LanguageRequest request = vexa::TakeLanguageRequest(arguments);
  const vexa::ProgramStart begin = vexa::StartProgram(QDir::currentPath());
  const vexa::Language language = request.language.value_or(begin.settings.language);
  vexa::UseLanguage(language);

  QCommandLineParser parser;
  parser.setApplicationDescription(Text::tr("顕微反射率測定装置 VEXA-KT の制御・解析プログラム。"));
  parser.addOption(
      {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("この説明を表示します。")});
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               Text::tr("開くデータファイルまたは環境ファイル。"),
                               QStringLiteral("[FILE]"));
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
  const int status = parser.isSet(options.demo)
                         ? RunDemonstration(parser.value(options.demo), parser.isSet(options.gpib),
                                            parser.value(options.pictures))
                         : RunWindow(begin.notices, parser.positionalArguments().value(0));
  if (vexa::BackgroundThread::AnyLeft()) {
    // It hangs in a call to a server; all that is to be kept is on the disk.
    std::fflush(nullptr);
    std::_Exit(status);
  }
  return status;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <array>

#include "base/language.h"
#include "base/translation.h"
#include "cli/console.h"
#include "cli/program_settings.h"

namespace vexa::cli {
namespace {

const std::array kCommands{AnalyseCommand, ConvertCommand,     DecodeCommand,   DispersionCommand,
                           EnvCommand,     FitCommand,         JudgeCommand,    MeasureCommand,
                           RecordsCommand, ReflectanceCommand, StandardCommand, StatisticsCommand,
                           StockCommand};

QString Overview() {
  QString text = Text::tr("使い方: vexa-cli コマンド [引数] [オプション]\n\nコマンド:\n");
  for (const auto& make : kCommands) {
    const Command command = make();
    text += QStringLiteral("  %1 %2\n").arg(command.name, -12).arg(command.summary);
  }
  return text + Text::tr("\n「vexa-cli コマンド --help」で、それぞれの説明を表示します。\n");
}

int RunCommand(const Command& command, const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(command.summary);
  parser.addOption(
      {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("この説明を表示します。")});
  parser.addOption({option::kJson, Text::tr("一つの JSON 文書を出力します。")});
  parser.addOption(
      {option::kDir,
       Text::tr("設定ファイルのあるプログラムディレクトリ（省略時：現在のディレクトリ）。"),
       QStringLiteral("DIR")});
  parser.addOption({option::kLanguage,
                    Text::tr("表示言語：ja（省略時）または en。--json では常に ja です。"),
                    QStringLiteral("CODE")});
  parser.addOption({option::kNo, Text::tr("すべての質問に「いいえ」と答えます。")});
  command.declareOptions(parser);
  if (!parser.parse(QStringList{QStringLiteral("vexa-cli")} + arguments)) {
    Complain(command.name + QStringLiteral(": ") + parser.errorText());
    return kUsageError;
  }
  if (parser.isSet(QStringLiteral("help"))) {
    QString help = parser.helpText();
    help.replace(0, help.indexOf(u'\n'),
                 Text::tr("使い方: vexa-cli %1 %2").arg(command.name, command.arguments));
    Print(help);
    return kDone;
  }
  const qsizetype given = parser.positionalArguments().size();
  if (command.files < 0 ? given < -command.files : given != command.files) {
    Complain(Text::tr("使い方: vexa-cli %1 %2").arg(command.name, command.arguments));
    return kUsageError;
  }
  if (parser.isSet(option::kDir) && !QFileInfo(parser.value(option::kDir)).isDir()) {
    Complain(Text::tr("%1：フォルダがありません").arg(parser.value(option::kDir)));
    return kUsageError;
  }
  const int status = command.run(parser);
  if (!IsPrinted()) {
    Complain(Text::tr("標準出力に書き込めません"));
    return kFailed;
  }
  return status;
}

template <typename Number>
std::optional<Number> Checked(const QString& name, const QString& text, bool ok, Number value,
                              Number minimum, Number maximum) {
  if (ok && value >= minimum && value <= maximum) {
    return value;
  }
  Complain(Text::tr("--%1 は %2 ～ %3 の数値です：\"%4\"")
               .arg(name, QString::number(minimum), QString::number(maximum), text));
  return std::nullopt;
}

}  // namespace

int Run(QStringList arguments) {
  const LanguageRequest request = TakeLanguageRequest(arguments);
  // A JSON document is the same in both languages.
  UseLanguage(arguments.contains(QStringLiteral("--") + option::kJson)
                  ? Language::kJapanese
                  : request.language.value_or(Language::kJapanese));
  if (!request.fault.isEmpty()) {
    Complain(request.fault);
    return kUsageError;
  }
  if (arguments.isEmpty()) {
    Complain(Text::tr("コマンドがありません。一覧は \"vexa-cli --help\""));
    return kUsageError;
  }
  const QString& first = arguments.front();
  if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
    Print(Overview());
    return kDone;
  }
  if (first == QLatin1String("--version")) {
    Print(QStringLiteral("vexa-cli " VEXA_VERSION "\n"));
    return kDone;
  }
  for (const auto& make : kCommands) {
    if (const Command command = make(); command.name == first) {
      return RunCommand(command, arguments.sliced(1));
    }
  }
  Complain(Text::tr("コマンド \"%1\" はありません。一覧は \"vexa-cli --help\"").arg(first));
  return kUsageError;
}

std::optional<int> IntegerOption(const QCommandLineParser& parser, const QString& name,
                                 int otherwise, int minimum, int maximum) {
  if (!parser.isSet(name)) {
    return otherwise;
  }
  bool ok = false;
  const int value = parser.value(name).toInt(&ok);
  return Checked(name, parser.value(name), ok, value, minimum, maximum);
}

std::optional<double> RealOption(const QCommandLineParser& parser, const QString& name,
                                 double otherwise, double minimum, double maximum) {
  if (!parser.isSet(name)) {
    return otherwise;
  }
  bool ok = false;
  const double value = parser.value(name).toDouble(&ok);
  return Checked(name, parser.value(name), ok, value, minimum, maximum);
}

bool NotBoth(const QCommandLineParser& parser, const QString& one, const QString& other) {
  if (!parser.isSet(one) || !parser.isSet(other)) {
    return true;
  }
  Complain(Text::tr("--%1 と --%2 は同時に指定できません").arg(one, other));
  return false;
}

}  // namespace vexa::cli

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "files/environment_file.h"

namespace vexa::cli {
namespace {

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("環境ファイル。"));
  parser.addOption({option::kOut, Text::tr("現在の形式で書き込みます。"), QStringLiteral("FILE")});
}

struct JsonValue {
  QJsonValue operator()(std::monostate) const { return {}; }
  QJsonValue operator()(const std::int16_t* value) const { return *value; }
  QJsonValue operator()(const double* value) const { return *value; }
  QJsonValue operator()(const Flag* value) const { return bool{*value}; }
  QJsonValue operator()(const QString* value) const { return *value; }
};

int Environment(const QCommandLineParser& parser) {
  const QString path = parser.positionalArguments().front();
  ConsoleMessages messages(parser.isSet(option::kNo));
  Settings state;
  const ReadResult<EnvironmentContent> content = ReadEnvFile(path);
  const bool read = static_cast<bool>(content);
  const double version = read ? content->version : content.Fault().version;
  if (read) {
    ApplyEnvironment(*content, state);
    TellAll(EnvironmentDoubts(path, *content), messages);
  } else {
    messages.Tell(EnvironmentMessage(path, content.Fault()));
    Complain(Text::tr("%1：読み込めません").arg(path));
  }
  const auto lines = EnvironmentLines(state);
  if (parser.isSet(option::kJson)) {
    QJsonObject object;
    for (std::size_t number = 2; read && number < lines.size(); ++number) {
      object.insert(QString::number(number), std::visit(JsonValue{}, lines[number]));
    }
    PrintJson({{QStringLiteral("read"), read},
               {QStringLiteral("version"), version},
               {QStringLiteral("lines"), read ? QJsonValue(object) : QJsonValue()}});
  } else if (read) {
    for (std::size_t number = 2; number < lines.size(); ++number) {
      Print(QStringLiteral("%1  %2\n")
                .arg(number, 2)
                .arg(std::visit(JsonValue{}, lines[number]).toVariant().toString()));
    }
  }
  if (read && parser.isSet(option::kOut)) {
    const QString out = parser.value(option::kOut);
    if (!ComplainUnwritten(WriteEnvFile(out, state), out)) {
      return kFailed;
    }
  }
  return read ? kDone : kFailed;
}

}  // namespace

Command EnvCommand() {
  return {QStringLiteral("env"),
          QStringLiteral("FILE [--out FILE]"),
          Text::tr("読み込めるすべてのバージョンの環境ファイルを表示します。"),
          1,
          DeclareOptions,
          Environment};
}

}  // namespace vexa::cli

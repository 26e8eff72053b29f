// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/program_settings.h"
#include "cli/records_actions.h"

namespace vexa::cli {
namespace {

using namespace records_option;

struct Action {
  QString name;
  QString arguments;
  qsizetype least;  ///< arguments behind the name
  qsizetype most;   ///< -1: any number
  QStringList options;
  int (*run)(const QCommandLineParser& parser, const QStringList& arguments);
};

const QList<Action>& Actions() {
  static const QList<Action> kActions{
      {QStringLiteral("list"),
       QStringLiteral("[options]"),
       0,
       0,
       {kLot, kRecipe, kSample, kOperator, kFrom, kTo, kVerdict, kLimit, kAll},
       ListRecords},
      {QStringLiteral("show"), QStringLiteral("ID"), 1, 1, {}, ShowRecord},
      {QStringLiteral("evaluate"),
       QStringLiteral("ID... [--env FILE] [--standard FILE]"),
       1,
       -1,
       {kEnv, option::kStandard},
       EvaluateRecords},
      {QStringLiteral("export"),
       QStringLiteral("ID... --out FILE"),
       1,
       -1,
       {option::kOut},
       ExportFiles},
      {QStringLiteral("import"),
       QStringLiteral("FILE... [--lot L] [--operator NAME]"),
       1,
       -1,
       {kLot, kOperator},
       ImportFiles},
      {QStringLiteral("supersede"),
       QStringLiteral("ID --by ID --reason TEXT [--operator NAME]"),
       1,
       1,
       {kBy, kReason, kOperator},
       SupersedeRecord},
      {QStringLiteral("verify"), QString(), 0, 0, {}, VerifyStore},
      {QStringLiteral("sync"), QStringLiteral("[--to CONNECTION]"), 0, 0, {kTo}, SyncStore},
      {QStringLiteral("backup"), QStringLiteral("FILE"), 1, 1, {}, BackUpStore},
  };
  return kActions;
}

QString ActionNames() {
  QStringList names;
  for (const Action& action : Actions()) {
    names << action.name;
  }
  return names.join(QStringLiteral(", "));
}

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("ACTION"),
                               Text::tr("次のどれか：%1。").arg(ActionNames()));
  const auto add = [&parser](const QString& name, const QString& text, const char* value) {
    parser.addOption({name, text, QLatin1String(value)});
  };
  add(kStore, Text::tr("記録のファイル（省略時：プログラムディレクトリの records.db）。"), "FILE");
  add(kLot, Text::tr("list：このロットだけ。import：サンプルのロット。"), "LOT");
  add(kRecipe, Text::tr("list：このレシピだけ。"), "RECIPE");
  add(kSample, Text::tr("list：この文字列を含む試料番号だけ。"), "TEXT");
  add(kOperator, Text::tr("list：この測定者だけ。import、supersede：行う人。"), "NAME");
  add(kFrom, Text::tr("list：この日付 (yyyy-mm-dd) または時刻から。"), "DATE");
  add(kTo,
      Text::tr("list：この日付または時刻まで（含む）。sync：PostgreSQL のサービスまたは URI。"),
      "DATE");
  add(kVerdict, Text::tr("list：この判定だけ：OK、NG、none（判定なし）。"), "VERDICT");
  add(kLimit, Text::tr("list：最大の件数（省略時 100）。"), "N");
  parser.addOption({kAll, Text::tr("list：差し替えられたものも。")});
  add(kEnv, Text::tr("evaluate：プログラムディレクトリのものの代わりに使う環境ファイル。"),
      "FILE.env");
  add(option::kStandard, Text::tr("evaluate：環境のものの代わりに使う規格。"), "FILE.std");
  add(option::kOut, Text::tr("export：*.csv、*.dat、*.json、*.jdx のどれか。"), "FILE");
  add(kBy, Text::tr("supersede：代わりになるサンプル。"), "ID");
  add(kReason, Text::tr("supersede：理由。"), "TEXT");
}

int Records(const QCommandLineParser& parser) {
  QStringList arguments = parser.positionalArguments();
  const QString name = arguments.takeFirst();
  const auto action = std::ranges::find(Actions(), name, &Action::name);
  if (action == Actions().end()) {
    Complain(Text::tr("records に \"%1\" はありません：%2").arg(name, ActionNames()));
    return kUsageError;
  }
  if (arguments.size() < action->least || (action->most >= 0 && arguments.size() > action->most)) {
    Complain(Text::tr("使い方: vexa-cli records %1 %2").arg(name, action->arguments));
    return kUsageError;
  }
  const QStringList common{kStore, option::kJson, option::kDir, option::kNo};
  for (const QString& given : parser.optionNames()) {
    if (!action->options.contains(given) && !common.contains(given)) {
      Complain(Text::tr("records %1 に --%2 はありません").arg(name, given));
      return kUsageError;
    }
  }
  return action->run(parser, arguments);
}

}  // namespace

Command RecordsCommand() {
  return {QStringLiteral("records"),
          QStringLiteral("ACTION [arguments] [options]"),
          Text::tr("記録した測定を検索、表示、エクスポート、検査します。"),
          -1,
          DeclareOptions,
          Records};
}

}  // namespace vexa::cli

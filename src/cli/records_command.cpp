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
  parser.addPositionalArgument(QStringLiteral("ACTION"), Text::tr("One of %1.").arg(ActionNames()));
  const auto add = [&parser](const QString& name, const char* text, const char* value) {
    parser.addOption({name, Text::tr(text), QLatin1String(value)});
  };
  add(kStore,
      QT_TRANSLATE_NOOP("Text", "The record store (default: records.db of the program directory)."),
      "FILE");
  add(kLot, QT_TRANSLATE_NOOP("Text", "list: only this lot; import: the lot of the samples."),
      "LOT");
  add(kRecipe, QT_TRANSLATE_NOOP("Text", "list: only this recipe."), "RECIPE");
  add(kSample, QT_TRANSLATE_NOOP("Text", "list: only sample numbers that hold this text."), "TEXT");
  add(kOperator,
      QT_TRANSLATE_NOOP("Text", "list: only this operator; import, supersede: who does it."),
      "NAME");
  add(kFrom, QT_TRANSLATE_NOOP("Text", "list: from this date, yyyy-mm-dd, or time on."), "DATE");
  add(kTo,
      QT_TRANSLATE_NOOP(
          "Text", "list: to this date or time, included; sync: the PostgreSQL service or URI."),
      "DATE");
  add(kVerdict, QT_TRANSLATE_NOOP("Text", "list: only this verdict: OK, NG or none."), "VERDICT");
  add(kLimit, QT_TRANSLATE_NOOP("Text", "list: at most so many (default 100)."), "N");
  parser.addOption({kAll, Text::tr("list: superseded ones too.")});
  add(kEnv,
      QT_TRANSLATE_NOOP("Text",
                        "evaluate: environment file in the place of the program directory's."),
      "FILE.env");
  add(option::kStandard,
      QT_TRANSLATE_NOOP("Text", "evaluate: standards in the place of the environment's."),
      "FILE.std");
  add(option::kOut, QT_TRANSLATE_NOOP("Text", "export: *.csv, *.dat, *.json or *.jdx."), "FILE");
  add(kBy, QT_TRANSLATE_NOOP("Text", "supersede: the sample that takes the place."), "ID");
  add(kReason, QT_TRANSLATE_NOOP("Text", "supersede: why."), "TEXT");
}

int Records(const QCommandLineParser& parser) {
  QStringList arguments = parser.positionalArguments();
  const QString name = arguments.takeFirst();
  const auto action = std::ranges::find(Actions(), name, &Action::name);
  if (action == Actions().end()) {
    Complain(QStringLiteral("records: no action \"%1\"; there are %2").arg(name, ActionNames()));
    return kUsageError;
  }
  if (arguments.size() < action->least || (action->most >= 0 && arguments.size() > action->most)) {
    Complain(QStringLiteral("usage: vexa-cli records %1 %2").arg(name, action->arguments));
    return kUsageError;
  }
  const QStringList common{kStore, option::kJson, option::kDir, option::kNo};
  for (const QString& given : parser.optionNames()) {
    if (!action->options.contains(given) && !common.contains(given)) {
      Complain(QStringLiteral("records %1 has no option --%2").arg(name, given));
      return kUsageError;
    }
  }
  return action->run(parser, arguments);
}

}  // namespace

Command RecordsCommand() {
  return {QStringLiteral("records"),
          QStringLiteral("ACTION [arguments] [options]"),
          Text::tr("Searches, shows, exports and checks the kept measurements."),
          -1,
          DeclareOptions,
          Records};
}

}  // namespace vexa::cli

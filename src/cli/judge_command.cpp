// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/translation.h"
#include "cli/analysis_settings.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/judgement_json.h"
#include "cli/program_settings.h"
#include "cli/text_columns.h"
#include "files/data_file.h"
#include "standards/standard_file.h"

namespace vexa::cli {
namespace {

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("データファイル (*.csv, *.dat)。"));
  parser.addOption({option::kStandard, Text::tr("判定に使う規格。"), QStringLiteral("FILE.std")});
}

// The panel's text, and the distance to the nearest limit where there is one.
QString Verdict(const Judgement& judgement, std::size_t group) {
  QString text = PanelText(judgement, group);
  const std::optional<double>& margin = judgement.groups[group].margin;
  if (!margin) {
    return text;
  }
  return text + QLatin1String(*margin < 0.0 ? " -" : " +") + MarginText(judgement, group);
}

QString Report(const VEXATYPE& state) {
  QList<QStringList> rows;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (!slot.valid) {
      continue;
    }
    QStringList row{QStringLiteral("%1").arg(number, 2), slot.info.sampleNumber};
    for (std::size_t group = 0; group < kStandardGroupCount; ++group) {
      // What is judged is the same for every slot.
      if (slot.judgement.groups[group].passed) {
        row << Verdict(slot.judgement, group);
      }
    }
    rows << row;
  }
  return TextColumns(rows);
}

QJsonArray SlotsJson(const VEXATYPE& state) {
  QJsonArray array;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (const MeasurementSlot& slot = *state.Slot(number); slot.valid) {
      array.append(QJsonObject{{QStringLiteral("slot"), number},
                               {QStringLiteral("sample"), slot.info.sampleNumber},
                               {QStringLiteral("judgement"), JudgementJson(slot.judgement)}});
    }
  }
  return array;
}

int Judge(const QCommandLineParser& parser) {
  if (!parser.isSet(option::kStandard)) {
    Complain(Text::tr("judge には --standard FILE.std が必要です"));
    return kUsageError;
  }
  ConsoleMessages messages(parser.isSet(option::kNo));
  Settings settings = LoadSettings(parser, messages);
  const QString standard = parser.value(option::kStandard);
  const std::optional<StandardContents> contents = ReadStandard(standard, messages);
  if (!contents) {
    return kFailed;
  }
  settings.standard = contents->standard;
  Session session(settings.programDirectory);
  session.TakeSettings(settings);
  const VEXATYPE& state = session.State();
  const QString path = parser.positionalArguments().constFirst();
  if (!LoadDataFile(path, session, messages)) {
    return kFailed;
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("file"), path}, {QStringLiteral("slots"), SlotsJson(state)}});
  } else {
    Print(Report(state));
  }
  return AnyNotGood(state) ? kJudgedNotGood : kDone;
}

}  // namespace

Command JudgeCommand() {
  return {QStringLiteral("judge"),
          QStringLiteral("FILE --standard FILE.std [options]"),
          Text::tr("データファイルの各スロットを判定します。NG があれば終了ステータスは 3 です。"),
          1,
          DeclareOptions,
          Judge};
}

}  // namespace vexa::cli

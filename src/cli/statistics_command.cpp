// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHash>
#include <algorithm>
#include <array>
#include <limits>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/number_columns.h"
#include "cli/program_settings.h"
#include "cli/statistics_report.h"
#include "statistics/process_study.h"

namespace vexa::cli {
namespace {

using statistics::RunRule;

const QString kColumn = QStringLiteral("column");
const QString kBaseline = QStringLiteral("baseline");
const QString kRules = QStringLiteral("rules");
const QString kLower = QStringLiteral("lower");
const QString kUpper = QStringLiteral("upper");
const QString kTolerance = QStringLiteral("tolerance");

constexpr double kLargest = 1e100;

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(
      QStringLiteral("KIND"),
      Text::tr("summary（要約）、xmr（個々の値と移動範囲の管理図）、capability（工程能力）、grr（ゲ"
               "ージの繰返し性と再現性）のどれか。"));
  parser.addPositionalArgument(
      QStringLiteral("FILE"),
      Text::tr("数値。一行に一つ、または見出しのある表。grr：列が part、operator、value の表。"));
  parser.addOption({kColumn, Text::tr("表の中の数値の列。"), QStringLiteral("NAME")});
  parser.addOption({kBaseline,
                    Text::tr("xmr：最初の N 点から限界を決めます（省略時：すべての点）。"),
                    QStringLiteral("N")});
  parser.addOption({kRules,
                    Text::tr("xmr：western（省略時）、nelson、または Nelson の8つのルールの一部。"),
                    QStringLiteral("western|nelson|1,2,5")});
  parser.addOption({kLower, Text::tr("capability：公差の下限。"), QStringLiteral("L")});
  parser.addOption({kUpper, Text::tr("capability：公差の上限。"), QStringLiteral("U")});
  parser.addOption({kTolerance, Text::tr("grr：公差の幅。"), QStringLiteral("T")});
}

int Show(const QCommandLineParser& parser, const StatisticsReport& report) {
  if (parser.isSet(option::kJson)) {
    PrintJson(report.json);
  } else {
    Print(report.text);
  }
  return kDone;
}

int Refuse(const QString& path, statistics::Refusal refusal) {
  Complain(path + QStringLiteral(": ") + statistics::RefusalText(refusal));
  return kFailed;
}

std::optional<std::vector<double>> ReadColumn(const QCommandLineParser& parser,
                                              const QString& path) {
  return ReadNumbers(path,
                     parser.isSet(kColumn) ? std::optional(parser.value(kColumn)) : std::nullopt);
}

int Summary(const QCommandLineParser& parser, const QString& path) {
  const auto values = ReadColumn(parser, path);
  if (!values) {
    return kFailed;
  }
  const auto summary = statistics::Summarise(*values);
  return summary ? Show(parser, ReportOf(*summary)) : Refuse(path, summary.Why());
}

// Nothing, and a complaint, when the text names no rules.
std::optional<std::vector<RunRule>> ChosenRules(const QCommandLineParser& parser) {
  const QString text = parser.isSet(kRules) ? parser.value(kRules) : QStringLiteral("western");
  const auto all = text == QLatin1String("western") ? statistics::WesternElectricRules()
                                                    : statistics::NelsonRules();
  if (text == QLatin1String("western") || text == QLatin1String("nelson")) {
    return std::vector(all.begin(), all.end());
  }
  const QStringList parts = text.split(u',');
  std::vector<RunRule> rules;
  for (const RunRule& rule : all) {
    if (parts.contains(QString::number(rule.number))) {
      rules.push_back(rule);
    }
  }
  if (static_cast<qsizetype>(rules.size()) != parts.size()) {
    Complain(Text::tr("--%1 は western、nelson、またはカンマ区切りの 1 ～ 8 の番号です：\"%2\"")
                 .arg(kRules, text));
    return std::nullopt;
  }
  return rules;
}

int Xmr(const QCommandLineParser& parser, const QString& path) {
  const auto baseline = IntegerOption(parser, kBaseline, 0, 2, std::numeric_limits<int>::max());
  if (!baseline) {
    return kUsageError;
  }
  const auto rules = ChosenRules(parser);
  if (!rules) {
    return kUsageError;
  }
  const auto values = ReadColumn(parser, path);
  if (!values) {
    return kFailed;
  }
  const auto count = *baseline == 0 ? values->size() : static_cast<std::size_t>(*baseline);
  if (count > values->size()) {
    return Refuse(path, statistics::Refusal::kTooFewValues);
  }
  const auto limits = statistics::ComputeLimits(std::span(*values).first(count));
  if (!limits) {
    return Refuse(path, limits.Why());
  }
  const auto found = statistics::JudgeValues(*limits, *values, *rules);
  return found ? Show(parser, ReportOf(*limits, *rules, *found, *values))
               : Refuse(path, found.Why());
}

int Capability(const QCommandLineParser& parser, const QString& path) {
  statistics::SpecificationLimits limits;
  const auto take = [&parser](const QString& name, std::optional<double>& limit) {
    const auto value = RealOption(parser, name, 0.0, -kLargest, kLargest);
    limit = parser.isSet(name) ? value : std::nullopt;
    return value.has_value();
  };
  if (!take(kLower, limits.lower) || !take(kUpper, limits.upper)) {
    return kUsageError;
  }
  if (!limits.lower && !limits.upper) {
    Complain(Text::tr("statistics capability には --lower、--upper の一方または両方が必要です"));
    return kUsageError;
  }
  if (limits.lower && limits.upper && *limits.lower >= *limits.upper) {
    Complain(Text::tr("--lower は --upper より小さくしてください"));
    return kUsageError;
  }
  const auto values = ReadColumn(parser, path);
  if (!values) {
    return kFailed;
  }
  const auto capability = statistics::ComputeCapability(*values, limits);
  // Of a value that cannot fall below 0 the limit mostly tells it.
  const auto bound = limits.lower == 0.0 ? limits.lower : std::nullopt;
  for (const statistics::NormalDoubt doubt : statistics::FindNormalDoubts(*values, bound)) {
    Complain(statistics::DoubtText(doubt));
  }
  return capability ? Show(parser, ReportOf(*capability)) : Refuse(path, capability.Why());
}

// Labels as numbers, the same for the same label.
std::vector<int> Numbered(const QStringList& labels) {
  QHash<QString, int> numbers;
  std::vector<int> result;
  for (const QString& label : labels) {
    const int number = numbers.value(label, static_cast<int>(numbers.size()));
    numbers.insert(label, number);
    result.push_back(number);
  }
  return result;
}

int Gauge(const QCommandLineParser& parser, const QString& path) {
  const auto tolerance = RealOption(parser, kTolerance, 1.0, 1.0 / kLargest, kLargest);
  if (!tolerance) {
    return kUsageError;
  }
  const auto table =
      ReadLabelledNumbers(path, {QStringLiteral("part"), QStringLiteral("operator")},
                          parser.isSet(kColumn) ? parser.value(kColumn) : QStringLiteral("value"));
  if (!table) {
    return kFailed;
  }
  const std::vector<int> parts = Numbered(table->labels[0]);
  const std::vector<int> operators = Numbered(table->labels[1]);
  std::vector<statistics::GaugeReading> readings;
  for (std::size_t i = 0; i < table->numbers.size(); ++i) {
    readings.push_back({parts[i], operators[i], table->numbers[i]});
  }
  const auto study =
      statistics::AnalyseGauge(readings, parser.isSet(kTolerance) ? tolerance : std::nullopt);
  return study ? Show(parser, ReportOf(*study)) : Refuse(path, study.Why());
}

struct Kind {
  QString name;
  QStringList options;
  int (*run)(const QCommandLineParser& parser, const QString& path);
};

int Statistics(const QCommandLineParser& parser) {
  static const std::array<Kind, 4> kKinds{
      {{QStringLiteral("summary"), {}, Summary},
       {QStringLiteral("xmr"), {kBaseline, kRules}, Xmr},
       {QStringLiteral("capability"), {kLower, kUpper}, Capability},
       {QStringLiteral("grr"), {kTolerance}, Gauge}}};
  const QStringList given = parser.positionalArguments();
  const auto kind = std::ranges::find(kKinds, given[0], &Kind::name);
  if (kind == kKinds.end()) {
    Complain(Text::tr("statistics：\"%1\" は summary、xmr、capability、grr のいずれでもありません")
                 .arg(given[0]));
    return kUsageError;
  }
  for (const QString& name : {kBaseline, kRules, kLower, kUpper, kTolerance}) {
    if (parser.isSet(name) && !kind->options.contains(name)) {
      Complain(Text::tr("statistics %1 に --%2 はありません").arg(kind->name, name));
      return kUsageError;
    }
  }
  return kind->run(parser, given[1]);
}

}  // namespace

Command StatisticsCommand() {
  return {QStringLiteral("statistics"),
          QStringLiteral("summary|xmr|capability|grr FILE [options]"),
          Text::tr("数値の要約、管理図、工程能力、測定システム解析。"),
          2,
          DeclareOptions,
          Statistics};
}

}  // namespace vexa::cli

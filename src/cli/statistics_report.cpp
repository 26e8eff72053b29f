// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/statistics_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/console.h"
#include "cli/text_columns.h"

namespace vexa::cli {
namespace {

using statistics::CapabilityIndex;
using statistics::Interval;
using statistics::VarianceSource;

/// Named values in the order of the text.
using Fields = std::vector<std::pair<QString, QJsonValue>>;

QJsonValue Value(std::optional<double> number) {
  return number && std::isfinite(*number) ? QJsonValue(*number) : QJsonValue();
}

QJsonValue Value(const Interval& interval) {
  return ToJson(std::array{interval.lower, interval.upper});
}

QJsonValue ValueOf(const std::optional<CapabilityIndex>& index) {
  return index ? Value(index->value) : QJsonValue();
}

QJsonValue IntervalOf(const std::optional<CapabilityIndex>& index) {
  return index ? Value(index->interval) : QJsonValue();
}

QString ValueText(const QJsonValue& value) {
  if (value.isArray()) {
    QStringList parts;
    for (const QJsonValue part : value.toArray()) {
      parts.append(ValueText(part));
    }
    return parts.join(QStringLiteral("  "));
  }
  if (value.isBool()) {
    return value.toBool() ? QStringLiteral(" yes") : QStringLiteral(" no");
  }
  return value.isDouble() ? SignedText(value.toDouble()) : QStringLiteral(" -");
}

QJsonObject Object(const Fields& fields) {
  QJsonObject object;
  for (const auto& [name, value] : fields) {
    object.insert(name, value);
  }
  return object;
}

QString Lines(const Fields& fields) {
  QList<QStringList> rows;
  for (const auto& [name, value] : fields) {
    rows.append({name, ValueText(value)});
  }
  return TextColumns(rows);
}

QString SourceName(VarianceSource source) {
  switch (source) {
    case VarianceSource::kPart:
      return QStringLiteral("part");
    case VarianceSource::kOperator:
      return QStringLiteral("operator");
    case VarianceSource::kInteraction:
      return QStringLiteral("interaction");
    case VarianceSource::kRepeatability:
      return QStringLiteral("repeatability");
    case VarianceSource::kPooled:
      return QStringLiteral("pooled");
    case VarianceSource::kTotal:
      return QStringLiteral("total");
  }
  return {};
}

}  // namespace

StatisticsReport ReportOf(const statistics::Summary& summary) {
  const Fields fields{
      {QStringLiteral("n"), static_cast<qint64>(summary.n)},
      {QStringLiteral("mean"), summary.mean},
      {QStringLiteral("s"), summary.s},
      {QStringLiteral("min"), summary.min},
      {QStringLiteral("max"), summary.max},
      {QStringLiteral("median"), summary.median},
      {QStringLiteral("standardError"), summary.standardError},
      {QStringLiteral("interval"), Value(summary.interval)},
      {QStringLiteral("lag1"), Value(summary.lag1)},
  };
  return {Object(fields), Lines(fields)};
}

StatisticsReport ReportOf(const statistics::ChartLimits& limits,
                          std::span<const statistics::RunRule> rules,
                          std::span<const statistics::Signal> found,
                          std::span<const double> values) {
  const Fields fields{
      {QStringLiteral("centre"), limits.centre},
      {QStringLiteral("lower"), limits.lower},
      {QStringLiteral("upper"), limits.upper},
      {QStringLiteral("meanRange"), limits.meanRange},
      {QStringLiteral("upperRange"), limits.upperRange},
  };
  StatisticsReport report{Object(fields), Lines(fields)};
  QJsonArray array;
  QList<QStringList> rows;
  for (const statistics::Signal& signal : found) {
    array.append(QJsonObject{{QStringLiteral("index"), static_cast<qint64>(signal.index)},
                             {QStringLiteral("rule"), signal.rule}});
    const auto rule = std::ranges::find(rules, signal.rule, &statistics::RunRule::number);
    rows.append({QString::number(signal.index), QStringLiteral("rule %1").arg(signal.rule),
                 statistics::RuleText(*rule)});
  }
  for (const std::size_t index : statistics::WideRanges(limits, values)) {
    rows.append(
        {QString::number(index), QStringLiteral("range"), Text::tr("移動範囲が上限を超えている")});
  }
  report.json.insert(QStringLiteral("signals"), array);
  report.text += TextColumns(rows);
  return report;
}

StatisticsReport ReportOf(const statistics::Capability& capability) {
  Fields fields{
      {QStringLiteral("n"), static_cast<qint64>(capability.n)},
      {QStringLiteral("sWithin"), capability.sWithin},
      {QStringLiteral("sOverall"), capability.sOverall},
      {QStringLiteral("Cp"), ValueOf(capability.cp)},
      {QStringLiteral("Cpk"), ValueOf(capability.cpk)},
      {QStringLiteral("Pp"), ValueOf(capability.pp)},
      {QStringLiteral("Ppk"), ValueOf(capability.ppk)},
      {QStringLiteral("CpInterval"), IntervalOf(capability.cp)},
      {QStringLiteral("CpkInterval"), IntervalOf(capability.cpk)},
      {QStringLiteral("expectedOutside"), capability.expectedOutside},
  };
  StatisticsReport report{Object(fields), {}};
  fields.insert(fields.end() - 1, {{QStringLiteral("PpInterval"), IntervalOf(capability.pp)},
                                   {QStringLiteral("PpkInterval"), IntervalOf(capability.ppk)}});
  report.text = Lines(fields);
  return report;
}

StatisticsReport ReportOf(const statistics::GaugeStudy& study) {
  const Fields fields{
      {QStringLiteral("repeatability"), study.repeatability},
      {QStringLiteral("reproducibility"), study.reproducibility},
      {QStringLiteral("interaction"), study.interaction},
      {QStringLiteral("grr"), study.grr},
      {QStringLiteral("part"), study.part},
      {QStringLiteral("total"), study.total},
      {QStringLiteral("percentGrr"), study.percentGrr},
      {QStringLiteral("percentTolerance"), Value(study.percentTolerance)},
      {QStringLiteral("ndc"),
       study.ndc ? QJsonValue(static_cast<qint64>(*study.ndc)) : QJsonValue()},
      {QStringLiteral("pooled"), study.pooled},
  };
  StatisticsReport report{Object(fields), Lines(fields)};
  QJsonArray table;
  QList<QStringList> rows{QStringLiteral("source, df, ss, ms, F, p").split(u',')};
  for (const statistics::VarianceRow& row : study.table) {
    const Fields cells{{QStringLiteral("source"), SourceName(row.source)},
                       {QStringLiteral("df"), row.df},
                       {QStringLiteral("ss"), row.ss},
                       {QStringLiteral("ms"), Value(row.ms)},
                       {QStringLiteral("F"), Value(row.f)},
                       {QStringLiteral("p"), Value(row.p)}};
    table.append(Object(cells));
    QStringList texts{SourceName(row.source)};
    for (std::size_t i = 1; i < cells.size(); ++i) {
      texts.append(ValueText(cells[i].second));
    }
    rows.append(texts);
  }
  report.json.insert(QStringLiteral("method"), QStringLiteral("anova"));
  report.json.insert(QStringLiteral("table"), table);
  report.text += u'\n' + TextColumns(rows);
  return report;
}

}  // namespace vexa::cli

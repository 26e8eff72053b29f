// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/chart_study.h"

#include <QDateTime>
#include <QHash>
#include <algorithm>
#include <cmath>
#include <limits>

#include "base/date_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"

namespace vexa {
namespace {

// Among the numbers of the rules in a file: the moving range is above its limit.
const QString kWideRange = QStringLiteral("MR");

QString GroupName(const ValuePoint& point, Grouping grouping) {
  switch (grouping) {
    case Grouping::kNone:
      return {};
    case Grouping::kLot:
      return point.lot;
    case Grouping::kDay:
      return point.time.left(10);  // the day of ISO 8601
    case Grouping::kStation:
      return point.station;
    case Grouping::kOperator:
      return point.operatorName;
  }
  return {};
}

void TellGroupsApart(const ValueSeries& series, ChartStudy& study) {
  if (study.request.grouping == Grouping::kNone) {
    return;
  }
  QHash<QString, int> known;
  study.groups.reserve(series.points.size());
  for (const ValuePoint& point : series.points) {
    const QString name = GroupName(point, study.request.grouping);
    const int group = known.value(name, static_cast<int>(known.size()));
    if (group == known.size()) {
      known.insert(name, group);
      study.groupNames << (name.isEmpty() ? QStringLiteral("-") : name);
    }
    study.groups.push_back(group);
  }
}

bool IsOutside(double value, const statistics::SpecificationLimits& limits) {
  return (limits.lower && value < *limits.lower) || (limits.upper && value > *limits.upper);
}

void StudyCapability(ChartStudy& study) {
  const statistics::SpecificationLimits& limits = study.request.tolerance;
  study.outside = static_cast<std::size_t>(std::ranges::count_if(
      study.values, [&limits](double value) { return IsOutside(value, limits); }));
  study.doubts =
      statistics::FindNormalDoubts(study.values, PhysicalBound(study.request.value.quantity));
  const auto capability = statistics::ComputeCapability(study.values, limits);
  if (!capability) {
    study.noCapability = statistics::RefusalText(capability.Why());
  } else if (study.doubts.empty()) {
    study.capability = *capability;
  }
}

QString IndexText(const std::optional<statistics::CapabilityIndex>& index) {
  return index ? QStringLiteral("%1 (%2 - %3)")
                     .arg(index->value, 0, 'f', 3)
                     .arg(index->interval.lower, 0, 'f', 3)
                     .arg(index->interval.upper, 0, 'f', 3)
               : QStringLiteral("-");
}

QString LimitText(const std::optional<double>& limit) {
  return limit ? ResultText(*limit) : QStringLiteral("-");
}

// Records of checks and gauge studies are kept under recipes of their own.
QString RecipeWarning(const QStringList& recipes) {
  constexpr qsizetype kMostNamed = 5;
  QStringList named = recipes.mid(0, kMostNamed);
  std::ranges::replace(named, QString(), Text::tr("(ﾚｼﾋﾟなし)"));
  if (recipes.size() > kMostNamed) {
    named << QStringLiteral("...");
  }
  return Text::tr("%1 種類のﾚｼﾋﾟの記録が混ざっています: %2")
      .arg(recipes.size())
      .arg(named.join(QStringLiteral(", ")));
}

}  // namespace

std::span<const statistics::RunRule> ChartStudy::Rules() const {
  return request.nelson ? statistics::NelsonRules() : statistics::WesternElectricRules();
}

QString ChartStudy::BrokenAt(std::size_t point) const {
  QStringList lines;
  const auto [first, last] = std::ranges::equal_range(found, point, {}, &statistics::Signal::index);
  for (const statistics::Signal& signal : std::ranges::subrange(first, last)) {
    const auto rule = std::ranges::find(Rules(), signal.rule, &statistics::RunRule::number);
    lines << QStringLiteral("%1: %2").arg(signal.rule).arg(statistics::RuleText(*rule));
  }
  return lines.join(u'\n');
}

ChartStudy StudyChart(const ValueSeries& series, const ChartRequest& request) {
  ChartStudy study;
  study.request = request;
  study.values = series.Values();
  TellGroupsApart(series, study);
  const auto summary = statistics::Summarise(study.values);
  if (!summary) {
    study.refusal = statistics::RefusalText(summary.Why());
    return study;
  }
  study.summary = *summary;
  if (IsHue(request.value.quantity)) {
    study.request.tolerance = NearestTurn(request.tolerance, summary->mean);
    if (summary->max - summary->min > 180.0) {
      study.refusal = Text::tr(
          "色相角が円の半分を超えて散らばっています。管理図も工程能力も意味を持ちません。");
      study.summary.reset();
      return study;
    }
  }
  const std::size_t baseline = request.baseline == 0 ? study.values.size() : request.baseline;
  if (baseline > study.values.size()) {
    study.refusal = statistics::RefusalText(statistics::Refusal::kTooFewValues);
    return study;
  }
  const auto limits = statistics::ComputeLimits(std::span(study.values).first(baseline));
  if (!limits) {
    study.refusal = statistics::RefusalText(limits.Why());
  } else {
    study.limits = *limits;
    const auto broken = statistics::JudgeValues(*limits, study.values, study.Rules());
    study.found = broken ? *broken : std::vector<statistics::Signal>();
  }
  StudyCapability(study);
  return study;
}

XmrPicture PictureOf(const ChartStudy& study, const ValueSeries& series) {
  XmrPicture picture{.title = ValueTitle(study.request.value),
                     .values = study.values,
                     .groups = study.groups,
                     .limits = study.limits,
                     .tolerance = study.request.tolerance,
                     .broken = {},
                     .hints = {}};
  for (const statistics::Signal& signal : study.found) {
    if (picture.broken.empty() || picture.broken.back() != signal.index) {
      picture.broken.push_back(signal.index);
    }
  }
  picture.hints.reserve(series.points.size());
  for (std::size_t i = 0; i < series.points.size(); ++i) {
    const ValuePoint& point = series.points[i];
    picture.hints.push_back(QStringLiteral("%1  %2\n%3  %4")
                                .arg(i + 1)
                                .arg(ResultText(point.value),
                                     point.time.left(19).replace(u'T', u' '), point.sampleNumber));
  }
  for (const std::size_t point : picture.broken) {
    picture.hints[point - 1] += u'\n' + study.BrokenAt(point);
  }
  return picture;
}

ResultTable StatisticsTable(const ChartStudy& study) {
  ResultTable table{Text::tr("統計"), {Text::tr("項目"), Text::tr("値")}, {}, 1};
  if (!study.summary) {
    return table;
  }
  const statistics::Summary& summary = *study.summary;
  const auto add = [&table](const QString& name, const QString& value) {
    table.rows << QStringList{name, value};
  };
  add(QStringLiteral("n"), QString::number(summary.n));
  add(Text::tr("平均"), ResultText(summary.mean));
  add(Text::tr("平均の95%信頼区間"),
      QStringLiteral("%1 - %2").arg(ResultText(summary.interval.lower),
                                    ResultText(summary.interval.upper)));
  add(Text::tr("標準偏差"), ResultText(summary.s));
  add(Text::tr("最小"), ResultText(summary.min));
  add(Text::tr("中央値"), ResultText(summary.median));
  add(Text::tr("最大"), ResultText(summary.max));
  add(Text::tr("1次の自己相関"),
      summary.lag1 ? QString::number(*summary.lag1, 'f', 3) : QStringLiteral("-"));
  if (study.limits) {
    add(QStringLiteral("UCL"), ResultText(study.limits->upper));
    add(QStringLiteral("CL"), ResultText(study.limits->centre));
    add(QStringLiteral("LCL"), ResultText(study.limits->lower));
    add(Text::tr("平均移動範囲"), ResultText(study.limits->meanRange));
  }
  add(Text::tr("規格下限"), LimitText(study.request.tolerance.lower));
  add(Text::tr("規格上限"), LimitText(study.request.tolerance.upper));
  add(Text::tr("規格外の点"), QString::number(study.outside));
  const std::optional<statistics::Capability>& capability = study.capability;
  add(QStringLiteral("Cp"), IndexText(capability ? capability->cp : std::nullopt));
  add(QStringLiteral("Cpk"), IndexText(capability ? std::optional(capability->cpk) : std::nullopt));
  add(QStringLiteral("Pp"), IndexText(capability ? capability->pp : std::nullopt));
  add(QStringLiteral("Ppk"), IndexText(capability ? std::optional(capability->ppk) : std::nullopt));
  add(Text::tr("規格外の期待値"),
      capability ? QStringLiteral("%1 ppm").arg(1e6 * capability->expectedOutside, 0, 'f', 1)
                 : QStringLiteral("-"));
  return table;
}

ResultTable SignalTable(const ChartStudy& study, const ValueSeries& series) {
  ResultTable table{
      Text::tr("異常"), {Text::tr("点番号"), Text::tr("日時"), Text::tr("規則")}, {}, 3};
  for (const statistics::Signal& signal : study.found) {
    const auto rule = std::ranges::find(study.Rules(), signal.rule, &statistics::RunRule::number);
    table.rows << QStringList{
        QString::number(signal.index),
        series.points[signal.index - 1].time.left(16).replace(u'T', u' '),
        QStringLiteral("%1: %2").arg(signal.rule).arg(statistics::RuleText(*rule))};
  }
  return table;
}

ResultTable GroupTable(const ChartStudy& study) {
  ResultTable table{Text::tr("群"),
                    {Text::tr("群"), QStringLiteral("n"), Text::tr("平均"), Text::tr("標準偏差"),
                     Text::tr("最小"), Text::tr("最大")},
                    {},
                    1};
  std::vector<std::vector<double>> groups(static_cast<std::size_t>(study.groupNames.size()));
  for (std::size_t i = 0; i < study.groups.size(); ++i) {
    groups[static_cast<std::size_t>(study.groups[i])].push_back(study.values[i]);
  }
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto summary = statistics::Summarise(groups[i]);
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    for (const double value : groups[i]) {
      least = std::min(least, value);
      greatest = std::max(greatest, value);
    }
    table.rows << QStringList{study.groupNames[static_cast<qsizetype>(i)],
                              QString::number(groups[i].size()),
                              ResultText(summary ? summary->mean : least),
                              summary ? ResultText(summary->s) : QStringLiteral("-"),
                              ResultText(least),
                              ResultText(greatest)};
  }
  return table;
}

QStringList Warnings(const ChartStudy& study, const ValueSeries& series) {
  QStringList lines;
  const bool cie = IsCie(study.request.value.quantity);
  if (cie && !series.cieConditions.isEmpty()) {
    lines << CieCaption(series.cieConditions.join(QStringLiteral(", ")));
  }
  if (cie && series.severalCieLimits) {
    lines << Text::tr("ﾚｼﾋﾟの限界が記録により異なります。最も新しい記録のものを用います。");
  }
  if (series.recipes.size() > 1) {
    lines << RecipeWarning(series.recipes);
  }
  if (!study.refusal.isEmpty()) {
    lines << study.refusal;
  }
  constexpr std::size_t kFewestForLimits = 20;
  const std::size_t baseline =
      study.request.baseline == 0 ? study.values.size() : study.request.baseline;
  if (study.limits && baseline < kFewestForLimits) {
    lines << Text::tr(
                 "管理限界は %1 点だけから求めたもので、確かではありません（20 "
                 "点以上が望まれます）。")
                 .arg(baseline);
  }
  for (const statistics::NormalDoubt doubt : study.doubts) {
    lines << statistics::DoubtText(doubt);
  }
  const statistics::SpecificationLimits& limits = study.request.tolerance;
  if (!study.doubts.empty() && (limits.lower || limits.upper)) {
    lines << Text::tr("そのため工程能力指数は示しません。規格外は %1 点中 %2 点でした。")
                 .arg(study.values.size())
                 .arg(study.outside);
  } else if (study.summary && !study.noCapability.isEmpty()) {
    lines << Text::tr("工程能力指数なし: %1").arg(study.noCapability);
  }
  if (study.capability && !study.found.empty()) {
    lines << Text::tr("管理状態にないため、工程能力指数は将来を約束しません。");
  }
  if (series.without > 0) {
    lines << Text::tr("この値のない記録が %1 件あります。").arg(series.without);
  }
  if (series.more) {
    lines << Text::tr("新しい方から %1 件だけを示しています。")
                 .arg(static_cast<qsizetype>(series.points.size()) + series.without);
  }
  return lines;
}

QList<QStringList> FileRows(const ChartStudy& study, const ValueSeries& series) {
  QString title = QuantityKey(study.request.value.quantity);
  if (study.request.value.quantity == Quantity::kReflectance) {
    title += QString::number(study.request.value.nm);
  }
  QList<QStringList> rows{{QStringLiteral("point"), QStringLiteral("time"),
                           QStringLiteral("station"), QStringLiteral("lot"),
                           QStringLiteral("operator"), QStringLiteral("sample"), title,
                           QStringLiteral("moving range"), QStringLiteral("rules")}};
  rows.reserve(static_cast<qsizetype>(series.points.size()) + 1);
  const std::vector<std::size_t> wide = study.limits
                                            ? statistics::WideRanges(*study.limits, study.values)
                                            : std::vector<std::size_t>();
  auto signal = study.found.begin();
  for (std::size_t i = 0; i < series.points.size(); ++i) {
    const ValuePoint& point = series.points[i];
    QStringList rules;
    for (; signal != study.found.end() && signal->index == i + 1; ++signal) {
      rules << QString::number(signal->rule);
    }
    if (std::ranges::binary_search(wide, i + 1)) {
      rules << kWideRange;
    }
    rows << QStringList{
        QString::number(i + 1),
        point.time,
        point.station,
        point.lot,
        point.operatorName,
        point.sampleNumber,
        FileNumber(point.value),
        i > 0 ? FileNumber(std::abs(point.value - series.points[i - 1].value)) : QString(),
        rules.join(u' ')};
  }
  return rows;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/gauge_result.h"

#include <array>
#include <utility>

#include "base/translation.h"
#include "colour/cie_parts.h"

namespace vexa {
namespace {

constexpr double kGoodPercent = 10.0;
constexpr double kPoorPercent = 30.0;
constexpr int kFewestCategories = 5;

// The tolerance is what the gauge is for, where it is known.
double DecidingPercent(const statistics::GaugeStudy& study) {
  return study.percentTolerance.value_or(study.percentGrr);
}

QString SourceText(statistics::VarianceSource source) {
  using enum statistics::VarianceSource;
  switch (source) {
    case kPart:
      return Text::tr("部品");
    case kOperator:
      return Text::tr("測定者");
    case kInteraction:
      return Text::tr("交互作用");
    case kRepeatability:
      return Text::tr("繰返し性");
    case kPooled:
      return Text::tr("繰返し性（併合）");
    case kTotal:
      return Text::tr("合計");
  }
  return {};
}

QString Optional(const std::optional<double>& value) {
  return value ? ResultText(*value) : QString();
}

}  // namespace

GaugeGrade GradeOf(const statistics::GaugeStudy& study) {
  const double percent = DecidingPercent(study);
  if (percent > kPoorPercent) {
    return GaugeGrade::kPoor;
  }
  const bool tells = !study.ndc || *study.ndc >= kFewestCategories;
  return percent < kGoodPercent && tells ? GaugeGrade::kGood : GaugeGrade::kMarginal;
}

QString GradeText(const statistics::GaugeStudy& study) {
  const QString figures =
      (study.percentTolerance ? Text::tr("ゲージ R&R は公差の %1 %、識別できる区分は %2 です。")
                              : Text::tr("ゲージ R&R は全変動の %1 %、識別できる区分は %2 です。"))
          .arg(DecidingPercent(study), 0, 'f', 1)
          .arg(study.ndc ? QString::number(*study.ndc) : QStringLiteral("∞"));
  switch (GradeOf(study)) {
    case GaugeGrade::kGood:
      return Text::tr("この測定システムは使えます。") + figures;
    case GaugeGrade::kMarginal:
      return Text::tr("この測定システムは用途によっては使えます。") + figures;
    case GaugeGrade::kPoor:
      return Text::tr("この測定システムは改善が必要です。") + figures;
  }
  return {};
}

ResultTable VarianceTable(const statistics::GaugeStudy& study) {
  ResultTable table{Text::tr("分散分析"),
                    {Text::tr("要因"), QStringLiteral("df"), QStringLiteral("SS"),
                     QStringLiteral("MS"), QStringLiteral("F"), QStringLiteral("p")},
                    {},
                    1};
  for (const statistics::VarianceRow& row : study.table) {
    table.rows << QStringList{
        SourceText(row.source), ResultText(row.df),
        ResultText(row.ss),     Optional(row.ms),
        Optional(row.f),        row.p ? QString::number(*row.p, 'f', 4) : QString()};
  }
  return table;
}

ResultTable ComponentTable(const statistics::GaugeStudy& study, std::optional<double> tolerance) {
  ResultTable table{
      Text::tr("成分"), {Text::tr("成分"), Text::tr("標準偏差"), Text::tr("全変動 [%]")}, {}, 1};
  if (tolerance) {
    table.headings << Text::tr("公差 [%]");
  }
  constexpr double kSpread = 6.0;
  const std::array<std::pair<QString, double>, 6> components{
      {{Text::tr("ゲージ R&R"), study.grr},
       {Text::tr("繰返し性"), study.repeatability},
       {Text::tr("再現性"), study.reproducibility},
       {Text::tr("交互作用"), study.interaction},
       {Text::tr("部品"), study.part},
       {Text::tr("合計"), study.total}}};
  for (const auto& [name, s] : components) {
    QStringList row{name, ResultText(s), QString::number(100.0 * s / study.total, 'f', 2)};
    if (tolerance) {
      row << QString::number(100.0 * kSpread * s / *tolerance, 'f', 2);
    }
    table.rows << row;
  }
  return table;
}

ResultTable AboutTable(const statistics::GaugeStudy& study, const GaugeReadings& readings) {
  ResultTable about{{}, {Text::tr("項目"), Text::tr("値")}, {}, 2};
  about.rows = {{Text::tr("値"), ValueTitle(readings.value) + CieNote(readings)},
                {Text::tr("部品の数"), QString::number(readings.parts.size())},
                {Text::tr("測定者"), readings.operators.join(QStringLiteral(", "))},
                {Text::tr("判定"), GradeText(study)}};
  return about;
}

QString CieNote(const GaugeReadings& readings) {
  return readings.cieConditions.isEmpty()
             ? QString()
             : u'\n' + CieCaption(readings.cieConditions.join(QStringLiteral(", ")));
}

QList<QStringList> ReadingRows(const GaugeReadings& readings) {
  QList<QStringList> rows{
      {QStringLiteral("part"), QStringLiteral("operator"), QStringLiteral("value")}};
  rows.reserve(static_cast<qsizetype>(readings.readings.size()) + 1);
  for (const statistics::GaugeReading& reading : readings.readings) {
    rows << QStringList{readings.parts[reading.part], readings.operators[reading.gaugeOperator],
                        FileNumber(reading.value)};
  }
  return rows;
}

}  // namespace vexa

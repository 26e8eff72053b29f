// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/slot_tables.h"

#include <algorithm>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"
#include "colour/colour_tables.h"
#include "colour/colour_values.h"
#include "standards/condition_caption.h"
#include "views/common/colour_texts.h"
#include "views/common/doubt_text.h"
#include "views/optics/fit_text.h"

namespace vexa {
namespace {

using Column = PageTable::Column;
using Row = std::vector<PageTable::Cell>;

const QString kNone = QStringLiteral("-");
constexpr double kNumberWidth = 70.0;
constexpr double kNameWidth = 340.0;
constexpr double kBandWidth = 140.0;

struct ColourColumn {
  QString title;
  ColourValue value;
};

const std::vector<ColourColumn>& ColourColumns() {
  using namespace colour_value;
  static const std::vector<ColourColumn> kColumns{{QStringLiteral("x"), kChromaticityX},
                                                  {QStringLiteral("y"), kChromaticityY},
                                                  {QStringLiteral("L*"), kL},
                                                  {QStringLiteral("a*"), kA},
                                                  {QStringLiteral("b*"), kB},
                                                  {QStringLiteral("C*"), kChroma},
                                                  {QStringLiteral("h[°]"), kHue},
                                                  {Text::tr("平均[%]"), kAverage},
                                                  {Text::tr("視感[%]"), kLuminous}};
  return kColumns;
}

template <typename MakeRow>
void AddRows(PageTable& table, const VEXATYPE& state, MakeRow makeRow) {
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (slot.valid) {
      Row row{{QString::number(number)}};
      makeRow(slot, row);
      table.rows.push_back(std::move(row));
    }
  }
}

QString LimitsText(const StandardLimits& limits) {
  if (!limits.enabled) {
    return kNone;
  }
  const QString pattern = QStringLiteral("##0.0##");
  return FormatNumber(limits.lower, pattern).trimmed() + Text::tr("～") +
         FormatNumber(limits.upper, pattern).trimmed();
}

Row LimitsRow(const StandardSet& standard) {
  const auto points = std::ranges::count_if(
      standard.conditions, [](const StandardLimits& limits) { return bool{limits.enabled}; });
  const QString band = standard.useReflectance && standard.conditions.front().enabled
                           ? Text::tr("%1点").arg(points)
                           : kNone;
  const WavelengthValueLimits& wavelength = standard.wavelengthValue;
  const QString kind = !wavelength.limits.enabled ? QString()
                       : wavelength.selector != 0 ? QStringLiteral("P ")
                                                  : QStringLiteral("V ");
  return {{},
          {Text::tr("規格")},
          {band},
          {LimitsText(standard.averageReflectance)},
          {LimitsText(standard.luminousReflectance)},
          {kind + LimitsText(wavelength.limits)},
          {LimitsText(standard.chroma)},
          {LimitsText(standard.hueAngle)},
          {}};
}

// "OK" or "NG"; nothing was judged where there is no verdict.
PageTable::Cell VerdictCell(const std::optional<bool>& passed) {
  if (!passed) {
    return {kNone};
  }
  return {*passed ? QStringLiteral("OK") : QStringLiteral("NG"), !*passed};
}

std::optional<bool> Overall(const Judgement& judgement) {
  std::optional<bool> overall;
  for (const GroupJudgement& group : judgement.groups) {
    if (group.passed) {
      overall = overall.value_or(true) && *group.passed;
    }
  }
  return overall;
}

QString ThicknessText(const MeasurementSlot& slot) {
  const ThicknessResult& thickness = slot.thickness;
  return thickness.IsComputed() ? DoubtMarkText(!slot.doubts.empty()) +
                                      FormatNumber(thickness.thicknessNm, u"###0.0").trimmed() +
                                      u' ' + ThicknessUnit(thickness.physical)
                                : kNone;
}

}  // namespace

PageTable SampleTable(const VEXATYPE& state) {
  PageTable table{.caption = Text::tr("試料"),
                  .columns = {{QStringLiteral("No."), kNumberWidth},
                              {Text::tr("試料No"), kNameWidth, Qt::AlignLeft, true},
                              {Text::tr("備考1"), 480.0, Qt::AlignLeft, true},
                              {Text::tr("備考2"), 480.0, Qt::AlignLeft, true},
                              {Text::tr("測定日"), 340.0}},
                  .rows = {}};
  AddRows(table, state, [](const MeasurementSlot& slot, Row& row) {
    const SampleInfo& info = slot.info;
    row.push_back({info.sampleNumber});
    row.push_back({info.remark1});
    row.push_back({info.remark2});
    row.push_back({info.measuredAt.isValid() ? DateTimeText(info.measuredAt) : kNone});
  });
  return table;
}

PageTable ValueTable(const VEXATYPE& state) {
  PageTable table{.caption = Text::tr("測定値"),
                  .columns = {{QStringLiteral("No."), kNumberWidth}},
                  .rows = {}};
  for (const ColourColumn& column : ColourColumns()) {
    table.columns.push_back({column.title, 160.0});
  }
  table.columns.push_back({Text::tr("膜厚", "column"), 240.0});
  AddRows(table, state, [&state](const MeasurementSlot& slot, Row& row) {
    // The slot itself does not tell whether its colour could be computed.
    ColourResult ignored;
    const bool coloured = CalcColour(slot.reflectance, state.colour, ignored);
    for (const ColourColumn& column : ColourColumns()) {
      const bool known = coloured || column.value.member == &ColourResult::Rm;
      row.push_back({known ? column.value.TextOf(slot.colour) : kNone});
    }
    row.push_back({ThicknessText(slot)});
  });
  return table;
}

PageTable CieTable(const VEXATYPE& state) {
  PageTable table{.caption = CieCaption(CieConditions(state.colour)),
                  .columns = {{QStringLiteral("No."), kNumberWidth}},
                  .rows = {}};
  for (const CiePart& part : kCieParts) {
    const bool spread = part.value == &CieColour::spread;
    const QString symbol = QString::fromUtf8(part.symbol);
    table.columns.push_back(
        {spread ? Text::tr("外挿差%1").arg(symbol) : symbol, spread ? 250.0 : 133.0});
  }
  AddRows(table, state, [&state](const MeasurementSlot& slot, Row& row) {
    const std::optional<CieColour> colour = CalcCieColour(slot.reflectance, state.colour);
    for (const CiePart& part : kCieParts) {
      row.push_back({CieValueText(colour, part)});
    }
  });
  return table;
}

std::optional<PageTable> ThicknessTable(const VEXATYPE& state) {
  PageTable table{.caption = Text::tr("膜厚"),
                  .columns = {{QStringLiteral("No."), kNumberWidth},
                              {Text::tr("膜厚", "column"), 260.0},
                              {Text::tr("▲ 疑い"), 620.0, Qt::AlignLeft, true},
                              {Text::tr("膜厚ﾌｨｯﾄ [nm]"), 360.0, Qt::AlignRight, true},
                              {Text::tr("結果"), 400.0, Qt::AlignLeft, true}},
                  .rows = {}};
  bool noted = false;
  AddRows(table, state, [&noted](const MeasurementSlot& slot, Row& row) {
    noted = noted || !slot.doubts.empty() || slot.fit;
    row.push_back({ThicknessText(slot)});
    row.push_back({DoubtTexts(slot.doubts).replace(u'\n', u' ')});
    row.push_back({slot.fit ? FitThicknessText(*slot.fit) : kNone});
    row.push_back({slot.fit ? FitOutcomeText(slot.fit->outcome) : QString()});
  });
  return noted ? std::optional(table) : std::nullopt;
}

std::optional<PageTable> BandTable(const VEXATYPE& state) {
  const StandardSet& standard = state.standard;
  if (!standard.useReflectance || !standard.conditions.front().enabled) {
    return std::nullopt;
  }
  PageTable table{
      .caption = Text::tr("反射率規格"), .columns = {{{}, kNameWidth, Qt::AlignLeft}}, .rows = {}};
  std::vector<Row> rows{
      {{Text::tr("波長 [nm]")}}, {{Text::tr("上限 [%]")}}, {{Text::tr("下限 [%]")}}};
  const auto text = [](double limit) { return FormatNumber(limit, u"##0.0##").trimmed(); };
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    if (const StandardLimits& limits = standard.conditions[k]; limits.enabled) {
      table.columns.push_back({ConditionCaption(k), kBandWidth});
      rows[0].push_back({QString::number(standard.wavelengths[k])});
      rows[1].push_back({text(limits.upper)});
      rows[2].push_back({text(limits.lower)});
    }
  }
  // Few conditions keep their width and leave the rest of the paper empty.
  const auto used = static_cast<double>(table.columns.size() - 1);
  table.columns.push_back({{}, std::max(1.0, (kConditionCount - used) * kBandWidth)});
  for (Row& row : rows) {
    row.emplace_back();
  }
  table.rows = std::move(rows);
  return table;
}

std::optional<PageTable> VerdictTable(const VEXATYPE& state) {
  constexpr double kWidth = 225.0;
  PageTable table{.caption = Text::tr("合否判定"),
                  .columns = {{QStringLiteral("No."), kNumberWidth},
                              {Text::tr("試料No"), kNameWidth, Qt::AlignLeft},
                              {Text::tr("反射率", "column"), 150.0, Qt::AlignHCenter},
                              {Text::tr("平均反射率", "column"), kWidth, Qt::AlignHCenter},
                              {Text::tr("視感反射率", "column"), kWidth, Qt::AlignHCenter},
                              {Text::tr("波長"), kWidth, Qt::AlignHCenter},
                              {Text::tr("クロマC*"), kWidth, Qt::AlignHCenter},
                              {Text::tr("色相角h[deg]"), kWidth, Qt::AlignHCenter},
                              {Text::tr("総合"), 120.0, Qt::AlignHCenter}},
                  .rows = {LimitsRow(state.standard)}};
  bool judged = false;
  AddRows(table, state, [&judged](const MeasurementSlot& slot, Row& row) {
    row.push_back({slot.info.sampleNumber});
    for (const GroupJudgement& group : slot.judgement.groups) {
      row.push_back(VerdictCell(group.passed));
    }
    row.push_back(VerdictCell(Overall(slot.judgement)));
    judged = judged || Overall(slot.judgement).has_value();
  });
  return judged ? std::optional(table) : std::nullopt;
}

QString SlotTitle(const VEXATYPE& state, int number) {
  return QStringLiteral("%1 %2").arg(number).arg(state.Slot(number)->info.sampleNumber).trimmed();
}

}  // namespace vexa

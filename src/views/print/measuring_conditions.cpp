// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/measuring_conditions.h"

#include <QRegularExpression>
#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"

namespace vexa {
namespace {

const QString kNone = QStringLiteral("-");

QString ReferenceText(const DispersionSetting& setting) {
  switch (setting.kind) {
    case DispersionKind::kFixedValue:
      return Text::tr("固定値 %1 %").arg(FormatNumber(setting.fixedValue, u"##0.0###").trimmed());
    case DispersionKind::kSchott:
      return Text::tr("Schott分散式");
    case DispersionKind::kSellmeier:
      return Text::tr("Sellmeier分散式");
    case DispersionKind::kIndexFile:
      return BareName(setting.indexFileName);
    default:
      return kNone;
  }
}

MeasuringConditions ConditionsOf(const MeasurementSlot& slot) {
  if (!slot.taken) {
    return {kNone, kNone};
  }
  const FrameConditions& frame = slot.taken->frame;
  return {Text::tr("%1 ms × %2回").arg(frame.samplingTimeMs).arg(frame.averagingCount),
          ReferenceText(slot.taken->reference)};
}

QString Common(const VEXATYPE& state, QString MeasuringConditions::*text) {
  std::optional<QString> common;
  for (const MeasurementSlot& slot : state.measurementSlots) {
    if (slot.valid && common.value_or(ConditionsOf(slot).*text) != ConditionsOf(slot).*text) {
      return Text::tr("ﾃﾞｰﾀごと (測定条件の表)");
    }
    if (slot.valid) {
      common = ConditionsOf(slot).*text;
    }
  }
  return common.value_or(kNone);
}

}  // namespace

QString BareName(const QString& path) {
  static const QRegularExpression kSeparator(QStringLiteral("[/\\\\:]"));
  return path.isEmpty() ? kNone : path.section(kSeparator, -1);
}

MeasuringConditions CommonConditions(const VEXATYPE& state) {
  return {Common(state, &MeasuringConditions::sampling),
          Common(state, &MeasuringConditions::reference)};
}

std::optional<PageTable> ConditionsTable(const VEXATYPE& state) {
  PageTable table{.caption = Text::tr("測定条件"),
                  .columns = {{QStringLiteral("No."), 70.0},
                              {Text::tr("試料No"), 740.0, Qt::AlignLeft, true},
                              {Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ"), 400.0, Qt::AlignLeft},
                              {Text::tr("ﾘﾌｧﾚﾝｽ"), 500.0, Qt::AlignLeft, true}},
                  .rows = {}};
  bool differ = false;
  std::optional<MeasuringConditions> first;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (!slot.valid) {
      continue;
    }
    const MeasuringConditions own = ConditionsOf(slot);
    first = first.value_or(own);
    differ = differ || own != *first;
    table.rows.push_back(
        {{QString::number(number)}, {slot.info.sampleNumber}, {own.sampling}, {own.reference}});
  }
  return differ ? std::optional(table) : std::nullopt;
}

}  // namespace vexa

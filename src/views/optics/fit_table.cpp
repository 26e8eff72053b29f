// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/fit_table.h"

#include "base/translation.h"
#include "views/optics/fit_text.h"

namespace vexa {

std::optional<PageTable> FitSettingTable(const VEXATYPE& state) {
  PageTable table{.caption = Text::tr("膜厚ﾌｨｯﾄの条件"),
                  .columns = {{QStringLiteral("No."), 260.0, Qt::AlignLeft, true},
                              {{}, 1640.0, Qt::AlignLeft, true}},
                  .rows = {}};
  const FilmStackSetting* last = nullptr;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (!slot.valid || !slot.fit || slot.fit->setting.layers.empty()) {
      continue;
    }
    if (last != nullptr && *last == slot.fit->setting) {
      table.rows.back().front().text += QStringLiteral(", %1").arg(number);
    } else {
      last = &slot.fit->setting;
      table.rows.push_back(
          {{QString::number(number)}, {FitSettingTexts(*last).join(QStringLiteral("   "))}});
    }
  }
  return table.rows.empty() ? std::nullopt : std::optional(table);
}

}  // namespace vexa

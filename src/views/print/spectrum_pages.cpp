// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/spectrum_pages.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/translation.h"
#include "views/graph/view_table.h"
#include "views/print/slot_tables.h"

namespace vexa {
namespace {

constexpr double kWavelengthWidth = 110.0;
constexpr double kValueWidth = 162.0;
constexpr double kStretchGap = 50.0;
// Rows come in tens, so that every stretch begins at a round wavelength.
constexpr int kRound = 10;

PageTable EmptyTable() {
  return {.caption = Text::tr("反射率 [%]"),
          .columns = {},
          .rows = {},
          .fontSize = 26,
          .rowHeight = 36.0,
          .rowsPerRule = kRound,
          .wholeTitles = false};  // names of samples
}

std::vector<int> ValidSlots(const VEXATYPE& state) {
  std::vector<int> numbers;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (state.Slot(number)->valid) {
      numbers.push_back(number);
    }
  }
  return numbers;
}

int RoundedUp(int rows) {
  return (rows + kRound - 1) / kRound * kRound;
}

// Rows of a page, never more than are needed.
int RowsThatFit(const PageFlow& flow, const PageTable& table, int needed) {
  const int fit =
      static_cast<int>((flow.Left() - table.HeadHeight(flow.Width())) / table.rowHeight);
  return needed <= fit ? needed : fit / kRound * kRound;
}

// `count` rows from the wavelength on, in stretches of `rows`.
PageTable MakeTable(const VEXATYPE& state, const std::vector<int>& numbers, int fromNm, int stepNm,
                    int rows, int stretches) {
  PageTable table = EmptyTable();
  table.rows.resize(static_cast<std::size_t>(rows));
  for (int stretch = 0; stretch < stretches; ++stretch) {
    if (stretch > 0) {
      table.columns.push_back({{}, kStretchGap});
    }
    const bool used = ReflectanceSpectrum::Contains(fromNm + stretch * rows * stepNm);
    table.columns.push_back({used ? QStringLiteral("nm") : QString(), kWavelengthWidth});
    for (const int number : numbers) {
      table.columns.push_back({used ? SlotTitle(state, number) : QString(), kValueWidth});
    }
    for (int row = 0; row < rows; ++row) {
      std::vector<PageTable::Cell>& cells = table.rows[static_cast<std::size_t>(row)];
      const int nm = fromNm + (stretch * rows + row) * stepNm;
      const bool within = ReflectanceSpectrum::Contains(nm);
      if (stretch > 0) {
        cells.emplace_back();
      }
      cells.push_back({within ? QString::number(nm) : QString()});
      for (const int number : numbers) {
        cells.push_back(
            {within
                 ? FormatNumber(state.Slot(number)->reflectance[nm], kReflectancePattern).trimmed()
                 : QString()});
      }
    }
  }
  return table;
}

}  // namespace

void AddSpectra(PageFlow& flow, const VEXATYPE& state, int stepNm) {
  const std::vector<int> numbers = ValidSlots(state);
  const double width = kWavelengthWidth + static_cast<double>(numbers.size()) * kValueWidth;
  const int stretches =
      std::max(1, static_cast<int>((flow.Width() + kStretchGap) / (width + kStretchGap)));
  int nm = ReflectanceSpectrum::kFirstNm;
  while (nm <= ReflectanceSpectrum::kLastNm) {
    const int left = (ReflectanceSpectrum::kLastNm - nm) / stepNm + 1;
    const int needed = stretches == 1 ? left : RoundedUp((left + stretches - 1) / stretches);
    int rows = RowsThatFit(flow, EmptyTable(), needed);
    if (rows < kRound && rows < needed) {
      flow.NewPage();
      rows = std::max(kRound, RowsThatFit(flow, EmptyTable(), needed));
    }
    const PageTable table = MakeTable(state, numbers, nm, stepNm, rows, stretches);
    flow.Add(table.Height(flow.Width()),
             [table](QPainter& painter, const QRectF& place) { table.Paint(painter, place); });
    nm += rows * stretches * stepNm;
  }
}

}  // namespace vexa

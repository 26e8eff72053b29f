// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_report.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"
#include "records/lot_tally.h"
#include "records/result_json.h"
#include "statistics/process_study.h"
#include "statistics/summary.h"
#include "views/common/theme.h"
#include "views/lot/lot_curves.h"
#include "views/lot/lot_verdict.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"

namespace vexa {
namespace {

constexpr double kTitleHeight = 86.0;
constexpr double kFooterHeight = 80.0;
constexpr double kGraphHeight = 900.0;
constexpr double kPixel = 2.5;  // of the graph, on paper
// A table of more columns could not be read.
constexpr std::size_t kMostValues = 7;

const QString kNone = QStringLiteral("-");

QString NumberText(double value) {
  return FormatNumber(value, u"####0.0###").trimmed();
}

QString NumberText(const std::optional<double>& value) {
  return value ? NumberText(*value) : kNone;
}

// A hue is printed as the circle has it.
QString NumberText(const LotValue& value, std::optional<double> number) {
  constexpr double kCircle = 360.0;
  if (number && value.hue && (*number < 0.0 || *number > kCircle)) {
    *number -= kCircle * std::floor(*number / kCircle);
  }
  return NumberText(number);
}

// The lenses that are neither OK nor NG yet, by their numbers.
QString NumbersOf(const LotTally& tally, LensState state) {
  QStringList numbers;
  for (const LotLens& lens : tally.Lenses()) {
    if (lens.State() == state) {
      numbers << lens.number;
    }
  }
  return numbers.join(QStringLiteral(", "));
}

// Each once, in their order.
QString Names(const LotContent& lot, QString SampleRecord::*text) {
  QStringList names;
  for (const LotRow& row : lot.rows) {
    if (!(row.sample.*text).isEmpty() && !names.contains(row.sample.*text)) {
      names << row.sample.*text;
    }
  }
  return names.isEmpty() ? kNone : names.join(QStringLiteral(", "));
}

PageTable SummaryTable(const LotContent& lot) {
  const LotTally& tally = lot.tally;
  const auto superseded =
      std::ranges::count_if(lot.rows, [](const LotRow& row) { return !row.holds; });
  PageTable table{.caption = {},
                  .columns = {{{}, 300.0, Qt::AlignLeft}, {{}, 1500.0, Qt::AlignLeft, true}},
                  .rows = {}};
  const auto add = [&table](const QString& name, const QString& text) {
    table.rows.push_back({{name}, {text}});
  };
  add(Text::tr("ロット"), lot.lot);
  add(Text::tr("レシピ"), Names(lot, &SampleRecord::recipe));
  add(Text::tr("作業者"), Names(lot, &SampleRecord::operatorName));
  add(Text::tr("測定"), Text::tr("%1 から %2 まで")
                            .arg(DateTimeText(lot.rows.front().sample.measuredAt),
                                 DateTimeText(lot.rows.back().sample.measuredAt)));
  add(Text::tr("レンズ"), Text::tr("%1   OK %2   NG %3   判定なし %4")
                              .arg(tally.Lenses().size())
                              .arg(tally.Count(LensState::kOk))
                              .arg(tally.Count(LensState::kNotGood))
                              .arg(tally.Count(LensState::kUnjudged)));
  for (const LensState state : {LensState::kIncomplete, LensState::kHeld}) {
    if (tally.Count(state) > 0) {
      add(LensStateText(state),
          QStringLiteral("%1   %2").arg(tally.Count(state)).arg(NumbersOf(tally, state)));
    }
  }
  const std::optional<double> yield = tally.Yield();
  add(Text::tr("歩留り"),
      yield ? QString::number(100.0 * *yield, 'f', 1) + QStringLiteral(" %") : kNone);
  add(Text::tr("測定数"), Text::tr("%1   うち測り直し前 %2").arg(lot.rows.size()).arg(superseded));
  if (const SampleRecord& last = lot.rows.back().sample;
      VerdictOf(last.cieGroups) != Verdict::kNone) {
    QStringList conditions;
    for (const LotRow& row : lot.rows) {
      AddCieConditions(row.sample.cie, conditions);
    }
    add(QStringLiteral("CIE"), CieCaption(conditions.join(QStringLiteral(", "))));
    if (last.cieLimits.deltaE00.enabled) {
      const LabColour& target = last.cieLimits.target;
      add(Text::tr("ΔE00の目標"),
          QStringLiteral("L* %1   a* %2   b* %3")
              .arg(NumberText(target.L), NumberText(target.a), NumberText(target.b)));
    }
  }
  return table;
}

PageTable StatisticsTable(const LotContent& lot, const std::vector<LotValue>& values) {
  PageTable table{.caption = Text::tr("統計"),
                  .columns = {{Text::tr("項目"), 420.0, Qt::AlignLeft, true},
                              {QStringLiteral("n"), 90.0},
                              {Text::tr("下限"), 130.0},
                              {Text::tr("上限"), 130.0},
                              {Text::tr("平均"), 150.0},
                              {QStringLiteral("s"), 140.0},
                              {Text::tr("最小"), 150.0},
                              {Text::tr("最大"), 150.0},
                              {QStringLiteral("Cpk"), 130.0},
                              {Text::tr("95%区間"), 220.0}},
                  .rows = {}};
  for (const LotValue& value : values) {
    const std::vector<double> numbers = ValuesOf(lot, value);
    const auto summary = statistics::Summarise(numbers);
    const auto capability = statistics::ComputeCapability(numbers, value.limits);
    std::vector<PageTable::Cell> row{{value.title},
                                     {QString::number(numbers.size())},
                                     {NumberText(value, value.limits.lower)},
                                     {NumberText(value, value.limits.upper)}};
    if (summary) {
      row.push_back({NumberText(value, summary->mean)});
      row.push_back({NumberText(summary->s)});
      row.push_back({NumberText(value, summary->min)});
      row.push_back({NumberText(value, summary->max)});
    } else {
      row.insert(row.end(), 4, {kNone});
    }
    // Where the normal distribution does not hold, a Cpk would promise what nobody knows.
    if (summary && capability && statistics::FindNormalDoubts(numbers, value.bound).empty()) {
      row.push_back({QString::number(capability->cpk.value, 'f', 2)});
      row.push_back({QStringLiteral("%1 - %2")
                         .arg(capability->cpk.interval.lower, 0, 'f', 2)
                         .arg(capability->cpk.interval.upper, 0, 'f', 2)});
    } else {
      row.insert(row.end(), 2, {kNone});
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

// Why there is no Cpk where there are limits.
PageTable DoubtTable(const LotContent& lot, const std::vector<LotValue>& values) {
  PageTable table{.caption = {},
                  .columns = {{Text::tr("項目"), 420.0, Qt::AlignLeft, true},
                              {Text::tr("Cpkを示さない理由"), 1400.0, Qt::AlignLeft, true}},
                  .rows = {}};
  for (const LotValue& value : values) {
    if (!value.limits.lower && !value.limits.upper) {
      continue;
    }
    const std::vector<double> numbers = ValuesOf(lot, value);
    QStringList reasons;
    if (const auto capability = statistics::ComputeCapability(numbers, value.limits); !capability) {
      reasons << statistics::RefusalText(capability.Why());
    }
    for (const statistics::NormalDoubt doubt : statistics::FindNormalDoubts(numbers, value.bound)) {
      reasons << statistics::DoubtText(doubt);
    }
    if (!reasons.isEmpty()) {
      table.rows.push_back({{value.title}, {reasons.join(u' ')}});
    }
  }
  return table;
}

// Every measurement with some of its values, as many as a page is wide.
PageTable RowTable(const LotContent& lot, std::span<const LotValue> values) {
  PageTable table{.caption = Text::tr("全測定"),
                  .columns = {{Text::tr("番号"), 300.0, Qt::AlignLeft, true},
                              {Text::tr("時刻"), 300.0, Qt::AlignLeft},
                              {Text::tr("判定"), 120.0, Qt::AlignHCenter}},
                  .rows = {},
                  .fontSize = 24,
                  .rowHeight = 38.0};
  for (const LotValue& value : values) {
    table.columns.push_back({value.title, 290.0});
  }
  table.columns.push_back({Text::tr("備考"), 300.0, Qt::AlignLeft, true});
  table.rows.reserve(lot.rows.size());
  for (const LotRow& row : lot.rows) {
    const LensState state = StateOf(VerdictOf(row.sample), row.heldBy);
    std::vector<PageTable::Cell> cells{{row.sample.sampleNumber},
                                       {DateTimeText(row.sample.measuredAt)},
                                       {LensStateText(state), state == LensState::kNotGood}};
    for (const LotValue& value : values) {
      cells.push_back({NumberText(value, value.of(row.sample))});
    }
    QStringList remarks;
    if (row.sample.repeats > 1) {
      remarks << Text::tr("繰返し %1/%2").arg(row.sample.repeat).arg(row.sample.repeats);
    }
    if (!row.sample.supersedes.isEmpty()) {
      remarks << Text::tr("測り直し: %1").arg(row.sample.reason);
    }
    if (!row.holds) {
      remarks << Text::tr("無効 (測り直し済み)");
    }
    cells.push_back({remarks.join(QStringLiteral(", "))});
    table.rows.push_back(std::move(cells));
  }
  return table;
}

void AddCurves(PageFlow& flow, const LotContent& lot) {
  LotCurves curves;
  curves.Show(lot);
  const QPicture picture =
      PlotDrawing(curves, (QSizeF(flow.Width(), kGraphHeight) / kPixel).toSize());
  flow.Add(kGraphHeight, [picture](QPainter& painter, const QRectF& place) {
    PlayDrawing(painter, place.topLeft(), kPixel, picture);
  });
}

// Title above, below it the last row of the store with its hash.
void PaintFrame(QPainter& painter, const QSizeF& page, const LotContent& lot, int number,
                int count) {
  const double width = page.width();
  constexpr int kTitleSize = 50;
  constexpr int kFootSize = 22;
  SetPageFont(painter, kTitleSize, true);
  painter.drawText(
      QRectF(0.0, 0.0, width, kTitleHeight - 16.0), Qt::AlignLeft | Qt::AlignVCenter,
      QFontMetricsF(painter.font())
          .elidedText(Text::tr("ロット報告書") + u' ' + lot.lot, Qt::ElideMiddle, width));
  painter.setPen(QPen(theme::kText, 4.0));
  painter.drawLine(QLineF(0.0, kTitleHeight - 12.0, width, kTitleHeight - 12.0));
  SetPageFont(painter, kFootSize);
  const QRectF footer(0.0, page.height() - kFooterHeight + 20.0, width, kFooterHeight - 20.0);
  painter.drawText(footer, Qt::AlignLeft | Qt::AlignVCenter,
                   Text::tr("記録 %1行  %2")
                       .arg(lot.head.number)
                       .arg(QString::fromLatin1(lot.head.hash.toHex())));
  painter.drawText(footer, Qt::AlignRight | Qt::AlignVCenter,
                   QStringLiteral("%1 / %2").arg(number).arg(count));
}

PageFlow LayOut(const LotContent& lot, const QSizeF& page) {
  PageFlow flow(
      QRectF(0.0, kTitleHeight, page.width(), page.height() - kTitleHeight - kFooterHeight));
  const std::vector<LotValue> values = LotValues(lot);
  flow.Add(SummaryTable(lot));
  flow.Add(StatisticsTable(lot, values));
  if (const PageTable doubts = DoubtTable(lot, values); !doubts.rows.empty()) {
    flow.Add(doubts);
  }
  AddCurves(flow, lot);
  flow.NewPage();
  std::span<const LotValue> left(values);
  do {
    const std::size_t count = std::min(left.size(), kMostValues);
    flow.Add(RowTable(lot, left.first(count)));
    left = left.subspan(count);
  } while (!left.empty());
  return flow;
}

}  // namespace

PageMaker MakeLotReport(const LotContent& lot) {
  const auto content = std::make_shared<const LotContent>(lot);
  return [content](const QSizeF& page) {
    const auto flow = std::make_shared<const PageFlow>(LayOut(*content, page));
    return PrintedPages{flow->PageCount(), [flow, content, page](QPainter& painter, int number) {
                          PaintFrame(painter, page, *content, number + 1, flow->PageCount());
                          flow->PaintPage(painter, number);
                        }};
  };
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/records_report.h"

#include <QPicture>
#include <algorithm>
#include <memory>
#include <utility>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"
#include "records/lot_tally.h"
#include "records/result_json.h"
#include "views/common/colour_kind.h"
#include "views/paper/page_flow.h"
#include "views/paper/plot_drawing.h"
#include "views/print/page_header.h"
#include "views/records/record_details.h"
#include "views/records/record_graph.h"

namespace vexa {
namespace {

constexpr qsizetype kMostCurves = 50;
constexpr double kGraphHeight = 950.0;
constexpr double kPixel = 2.5;  // of the graph, on paper
constexpr double kFooterHeight = 60.0;
const QString kNone = QStringLiteral("-");

LensState StateOf(const WholeRecord& record) {
  return StateOf(VerdictOf(record.sample), record.summary.heldBy);
}

QString Count(const QList<WholeRecord>& records, LensState state) {
  return QString::number(std::ranges::count_if(
      records, [state](const WholeRecord& record) { return StateOf(record) == state; }));
}

// The one value that all have in common; "-" when they differ or have none.
QString Common(const QList<WholeRecord>& records, QString SampleRecord::*part) {
  const QString first = records.first().sample.*part;
  const bool same = std::ranges::all_of(
      records, [&first, part](const WholeRecord& record) { return record.sample.*part == first; });
  return same && !first.isEmpty() ? first : kNone;
}

PageTable HeadTable(const QList<WholeRecord>& records, const QDate& printed) {
  PageTable table{.caption = Text::tr("記録"),
                  .columns = {{{}, 240.0, Qt::AlignLeft},
                              {{}, 700.0, Qt::AlignLeft, true},
                              {{}, 240.0, Qt::AlignLeft},
                              {{}, 700.0, Qt::AlignLeft, true}},
                  .rows = {}};
  const auto [first, last] = std::ranges::minmax(
      records, {}, [](const WholeRecord& record) { return record.sample.measuredAt; });
  const QString counts =
      Text::tr("%1件").arg(records.size()) +
      QStringLiteral("　OK %1　NG %2")
          .arg(Count(records, LensState::kOk), Count(records, LensState::kNotGood));
  table.rows = {
      {{Text::tr("件数")}, {counts}, {Text::tr("印刷日")}, {DateTimeText(printed.startOfDay())}},
      {{Text::tr("ロット")},
       {Common(records, &SampleRecord::lot)},
       {Text::tr("レシピ")},
       {Common(records, &SampleRecord::recipe)}},
      {{Text::tr("測定者")},
       {Common(records, &SampleRecord::operatorName)},
       {Text::tr("測定機")},
       {Common(records, &SampleRecord::station)}},
      {{Text::tr("測定日時")},
       {DateTimeText(first.sample.measuredAt) + Text::tr("～") +
        DateTimeText(last.sample.measuredAt)},
       {},
       {}}};
  return table;
}

PageTable CieTable(const QList<WholeRecord>& records) {
  PageTable table{.caption = CieCaption(CieConditionsOf(records)),
                  .columns = {{Text::tr("番号"), 110.0},
                              {Text::tr("試料No"), 210.0, Qt::AlignLeft, true},
                              {Text::tr("光源"), 150.0, Qt::AlignHCenter}},
                  .rows = {}};
  for (const CiePart& part : kCieParts) {
    table.columns.push_back(
        {QString::fromUtf8(part.symbol), part.value == &CieColour::spread ? 150.0 : 118.0});
  }
  for (const WholeRecord& record : records) {
    const std::optional<CieColour> colour = CieOf(record.sample.cie);
    std::vector<PageTable::Cell> row{{QString::number(record.summary.number)},
                                     {record.sample.sampleNumber},
                                     {CieConditionsOf(record.sample.cie)}};
    for (const CiePart& part : kCieParts) {
      row.push_back({CieValueText(colour, part)});
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

PageTable RowTable(const QList<WholeRecord>& records, bool cie) {
  PageTable table{.caption = cie ? Text::tr("測定値") + QStringLiteral("　") +
                                       ColourKindText(ColourKind::kInstrument)
                                 : Text::tr("測定値"),
                  .columns = {{Text::tr("番号"), 110.0},
                              {Text::tr("測定日時"), 330.0},
                              {Text::tr("ロット"), 220.0, Qt::AlignLeft, true},
                              {Text::tr("試料No"), 300.0, Qt::AlignLeft, true},
                              {Text::tr("判定"), 90.0, Qt::AlignHCenter},
                              {QStringLiteral("L*"), 120.0},
                              {QStringLiteral("a*"), 120.0},
                              {QStringLiteral("b*"), 120.0},
                              {Text::tr("平均[%]"), 140.0},
                              {Text::tr("視感[%]"), 140.0},
                              {Text::tr("膜厚", "column"), 190.0}},
                  .rows = {}};
  if (std::ranges::any_of(
          records, [](const WholeRecord& record) { return !record.sample.doubts.isEmpty(); })) {
    table.caption += QStringLiteral("　") + Text::tr("▲ 疑いあり");
  }
  const auto number = [](double value, QStringView pattern) {
    return PageTable::Cell{FormatNumber(value, pattern).trimmed()};
  };
  for (const WholeRecord& record : records) {
    const SampleRecord& sample = record.sample;
    const bool bad = StateOf(record) == LensState::kNotGood;
    table.rows.push_back({{QString::number(record.summary.number)},
                          {DateTimeText(sample.measuredAt)},
                          {sample.lot},
                          {sample.sampleNumber},
                          {VerdictText(record), bad},
                          number(sample.colour.L, u"##0.00"),
                          number(sample.colour.a, u"##0.00"),
                          number(sample.colour.b, u"##0.00"),
                          number(sample.colour.Rm, u"##0.0##"),
                          number(sample.colour.Y, u"##0.0##"),
                          {ThicknessText(sample)}});
  }
  return table;
}

PageFlow LayOut(const QList<WholeRecord>& records, bool cie, const QDate& printed,
                const QSizeF& page) {
  PageFlow flow(QRectF(0.0, 0.0, page.width(), page.height() - kFooterHeight));
  flow.Add(HeadTable(records, printed));
  RecordGraph graph;
  graph.Show(records.first(std::min(records.size(), kMostCurves)), {});
  const double height = std::min(kGraphHeight, flow.PageHeight());
  const QPicture picture = PlotDrawing(graph, (QSizeF(flow.Width(), height) / kPixel).toSize());
  flow.Add(height, [picture](QPainter& painter, const QRectF& place) {
    PlayDrawing(painter, place.topLeft(), kPixel, picture);
  });
  flow.Add(RowTable(records, cie));
  if (cie) {
    flow.Add(CieTable(records));
  }
  return flow;
}

}  // namespace

PageMaker MakeRecordsReport(const QList<WholeRecord>& records, bool cie, const QDate& printed,
                            const QString& proof) {
  return [records, cie, printed, proof](const QSizeF& page) {
    const auto flow = std::make_shared<const PageFlow>(LayOut(records, cie, printed, page));
    return PrintedPages{flow->PageCount(), [flow, page, proof](QPainter& painter, int number) {
                          flow->PaintPage(painter, number);
                          PaintFooter(painter, page, number + 1, flow->PageCount(), proof);
                        }};
  };
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/page_header.h"

#include <QPainter>

#include "base/date_text.h"
#include "base/translation.h"
#include "colour/colour_tables.h"
#include "records/record_store.h"
#include "views/common/colour_texts.h"
#include "views/common/theme.h"
#include "views/paper/printed_pages.h"
#include "views/print/measuring_conditions.h"

namespace vexa {
namespace {

constexpr double kTitleHeight = 76.0;
constexpr double kRowHeight = 42.0;
constexpr double kRows = 4.0;
constexpr double kHeaderHeight = kTitleHeight + kRows * kRowHeight + 44.0;
constexpr double kFooterHeight = 60.0;
constexpr double kLabelWidth = 170.0;
constexpr double kColumnGap = 40.0;
constexpr int kTitleSize = 50;
constexpr int kTextSize = 28;
constexpr int kProofSize = 22;
constexpr double kProofMargin = 130.0;
const QString kNone = QStringLiteral("-");

void DrawText(QPainter& painter, const QRectF& place, Qt::Alignment alignment, const QString& text,
              Qt::TextElideMode elide) {
  const QFontMetricsF metrics(painter.font());
  painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   metrics.elidedText(text, elide, place.width()));
}

void DrawRule(QPainter& painter, double y, double width) {
  painter.setPen(QPen(theme::kText, 4.0));
  painter.drawLine(QLineF(0.0, y, width, y));
}

}  // namespace

QString ReportTitle(const ReportRequest& request) {
  return request.title.trimmed().isEmpty() ? Text::tr("反射率測定結果") : request.title;
}

PageHeader::PageHeader(const VEXATYPE& state, const ReportRequest& request)
    : title_(ReportTitle(request)), proof_(request.proof) {
  const ColourSettings& colour = state.colour;
  const MeasuringConditions conditions = CommonConditions(state);
  entries_ = {
      {Text::tr("測定者"), request.operatorName.trimmed().isEmpty() ? kNone : request.operatorName},
      {Text::tr("環境ﾌｧｲﾙ"), BareName(state.envFileName)},
      {Text::tr("日付"), DateTimeText(request.date.startOfDay())},
      {Text::tr("規格ﾌｧｲﾙ"), BareName(state.standardFileName)},
      {Text::tr("測色条件"),
       Text::tr("光源 %1　視野 %2°　平均 %3-%4 nm")
           .arg(IlluminantText(colour.illuminant), ObserverText(colour.observer2Deg))
           .arg(colour.avgFrom)
           .arg(colour.avgTo)},
      {Text::tr("ﾃﾞｰﾀﾌｧｲﾙ"), request.unsaved || state.currentDataFileName.isEmpty()
                                 ? Text::tr("未保存")
                                 : BareName(state.currentDataFileName)},
      {Text::tr("測定条件"), conditions.sampling},
      {Text::tr("ﾘﾌｧﾚﾝｽ"), conditions.reference}};
}

QRectF PageHeader::Body(const QSizeF& page) {
  return {0.0, kHeaderHeight, page.width(), page.height() - kHeaderHeight - kFooterHeight};
}

void PageHeader::Paint(QPainter& painter, const QSizeF& page, int number, int count) const {
  const double width = page.width();
  SetPageFont(painter, kTitleSize, true);
  DrawText(painter, {0.0, 0.0, width, kTitleHeight - 10.0}, Qt::AlignLeft, title_, Qt::ElideRight);
  DrawRule(painter, kTitleHeight, width);

  const double columnWidth = (width - kColumnGap) / 2.0;
  double y = kTitleHeight + 10.0;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const double x = i % 2 == 0 ? 0.0 : columnWidth + kColumnGap;
    SetPageFont(painter, kTextSize);
    painter.setPen(theme::kMutedText);
    DrawText(painter, {x, y, kLabelWidth, kRowHeight}, Qt::AlignLeft, entries_[i].label,
             Qt::ElideRight);
    painter.setPen(theme::kText);
    // Of a long name both ends tell most.
    DrawText(painter, {x + kLabelWidth, y, columnWidth - kLabelWidth, kRowHeight}, Qt::AlignLeft,
             entries_[i].text, Qt::ElideMiddle);
    y += i % 2 == 0 ? 0.0 : kRowHeight;
  }

  PaintFooter(painter, page, number, count, proof_);
}

void PaintFooter(QPainter& painter, const QSizeF& page, int number, int count,
                 const QString& proof) {
  SetPageFont(painter, kTextSize);
  const double width = page.width();
  const QRectF footer(0.0, page.height() - kFooterHeight + 20.0, width, kFooterHeight - 20.0);
  DrawText(painter, footer, Qt::AlignLeft, QStringLiteral("VEXA-KT"), Qt::ElideRight);
  DrawText(painter, footer, Qt::AlignRight, QStringLiteral("%1 / %2").arg(number).arg(count),
           Qt::ElideRight);
  SetPageFont(painter, kProofSize);
  painter.setPen(theme::kMutedText);
  DrawText(painter, footer.adjusted(kProofMargin, 0.0, -kProofMargin, 0.0), Qt::AlignHCenter, proof,
           Qt::ElideNone);
  painter.setPen(theme::kText);
}

QString ProofText(const QString& storePath) {
  const std::optional<ChainHead> head = HeadOf(storePath);
  return head ? Text::tr("記録 %1: %2")
                    .arg(head->number)
                    .arg(QString::fromLatin1(head->hash.toHex()))
              : QString();
}

}  // namespace vexa

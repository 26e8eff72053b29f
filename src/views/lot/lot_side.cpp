// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_side.h"

#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "views/common/theme.h"
#include "views/lot/lot_verdict.h"

namespace vexa {
namespace {

constexpr int kWidth = 300;
constexpr int kLastLenses = 10;
constexpr int kYieldPixels = 34;

QLabel* Label(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setWordWrap(true);
  return label;
}

QString AgeText(bool measured, const FrameConditions& taken, int limitMinutes,
                const QDateTime& now) {
  if (!measured) {
    return Text::tr("未測定");
  }
  const qint64 minutes = std::max(taken.takenAt.secsTo(now), qint64{0}) / 60;
  return limitMinutes == 0 ? Text::tr("%1分前").arg(minutes)
                           : Text::tr("%1分前 (期限%2分)").arg(minutes).arg(limitMinutes);
}

}  // namespace

LotSide::LotSide(QWidget* parent)
    : QWidget(parent),
      identity_(Label("LotIdentity")),
      yield_(Label("LotYield")),
      counts_(Label("LotCounts")),
      last_(new QTableWidget(0, 2)),
      frames_(Label("LotFrames")) {
  setFixedWidth(kWidth);
  QFont font = yield_->font();
  font.setPixelSize(kYieldPixels);
  font.setBold(true);
  yield_->setFont(font);
  last_->setObjectName(QStringLiteral("LotLast"));
  last_->setFocusPolicy(Qt::NoFocus);
  last_->setSelectionMode(QAbstractItemView::NoSelection);
  last_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  last_->setHorizontalHeaderLabels({Text::tr("番号"), Text::tr("判定")});
  last_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  last_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  last_->horizontalHeader()->setHighlightSections(false);
  last_->verticalHeader()->hide();
  last_->verticalHeader()->setDefaultSectionSize(last_->fontMetrics().height() + 6);
  last_->setTextElideMode(Qt::ElideMiddle);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  layout->addWidget(identity_);
  layout->addWidget(yield_);
  layout->addWidget(counts_);
  layout->addWidget(last_, 1);
  layout->addWidget(frames_);
}

void LotSide::Show(const LotRun& run, const Session& session) {
  const LotIdentity& identity = run.Identity();
  const LotTally& tally = run.Tally();
  identity_->setText(
      Text::tr("ロット: %1\nレシピ: %2\n作業者: %3")
          .arg(identity.lot,
               identity.recipe.name.isEmpty() ? QStringLiteral("-") : identity.recipe.name,
               identity.operatorName));
  const std::optional<double> yield = tally.Yield();
  constexpr double kPercent = 100.0;
  yield_->setText(
      Text::tr("歩留り %1")
          .arg(yield ? QString::number(kPercent * *yield, 'f', 1) + u'%' : QStringLiteral("-")));
  counts_->setText(LensCounts(tally));
  ShowLast(run);
  const VEXATYPE& state = session.State();
  frames_->setText(Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: %1\nﾘﾌｧﾚﾝｽ: %2")
                       .arg(AgeText(state.backgroundMeasured, state.backgroundTaken,
                                    identity.recipe.backgroundAgeMinutes, session.Now()),
                            AgeText(state.referenceMeasured, state.referenceTaken,
                                    identity.recipe.referenceAgeMinutes, session.Now())));
}

// The newest first.
void LotSide::ShowLast(const LotRun& run) {
  const std::vector<LotLens>& lenses = run.Tally().Lenses();
  const int rows = std::min(kLastLenses, static_cast<int>(lenses.size()));
  last_->setRowCount(rows);
  for (int row = 0; row < rows; ++row) {
    const LotLens& lens = lenses[lenses.size() - 1 - static_cast<std::size_t>(row)];
    auto* verdict = new QTableWidgetItem(LensStateText(lens.State()));
    verdict->setForeground(LensStateColour(lens.State()));
    verdict->setTextAlignment(Qt::AlignCenter);
    last_->setItem(row, 0, new QTableWidgetItem(lens.number));
    last_->setItem(row, 1, verdict);
  }
}

}  // namespace vexa

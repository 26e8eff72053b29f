// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_verdict.h"

#include <QStringList>

#include "base/translation.h"
#include "colour/cie_colour.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

// White on each has a contrast of 4.5 or more.
const QColor kCalm(0x4a, 0x5a, 0x6a);
const QColor kAttention(0x8a, 0x56, 0x00);

// The groups of the standard and the CIE values that failed, with their distance to the limit.
QString Failures(const MeasurementSlot& slot, const Recipe& recipe,
                 const ColourSettings& settings) {
  QStringList failures;
  for (std::size_t i = 0; i < slot.judgement.groups.size(); ++i) {
    if (!slot.judgement.groups[i].passed.value_or(true)) {
      failures << (PanelText(slot.judgement, i) + u' ' +
                   ShortfallText(MarginText(slot.judgement, i)))
                      .trimmed();
    }
  }
  failures << CieFailures(JudgeCie(CalcCieColour(slot.reflectance, settings), recipe.cie));
  return failures.join(u'\n');
}

VerdictPanel::Content Measuring(const LotRun& run) {
  switch (run.Running()) {
    case MeasurementKind::kBackground:
      return {Text::tr("測定中"), kCalm, Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ"), {}};
    case MeasurementKind::kReference:
      return {Text::tr("測定中"), kCalm, Text::tr("ﾘﾌｧﾚﾝｽ"), {}};
    case MeasurementKind::kSample:
      break;
  }
  const int repeats = run.Identity().recipe.repeats;
  return {Text::tr("測定中"), kCalm, run.CurrentNumber(),
          repeats > 1 ? QStringLiteral("%1 / %2").arg(run.Repetition()).arg(repeats) : QString()};
}

VerdictPanel::Content Judged(const LotRun& run, const VEXATYPE& state) {
  const LotLens* lens = run.CurrentLens();
  const LensState lensState = lens == nullptr ? LensState::kUnjudged : lens->State();
  const MeasurementSlot* slot = state.Slot(run.LastSlot());
  VerdictPanel::Content content{
      LensStateText(lensState), LensStateColour(lensState), run.CurrentNumber(), {}};
  if (lensState == LensState::kUnjudged) {
    content.word = Text::tr("測定済");
    content.details = Text::tr("判定する規格がありません。");
  } else if (lensState == LensState::kHeld) {
    content.background = kAttention;
    content.details = run.HoldReason();
  } else if (slot != nullptr) {
    content.details = Failures(*slot, run.Identity().recipe, state.colour);
  }
  return content;
}

}  // namespace

VerdictPanel::Content VerdictContent(const LotRun& run, const VEXATYPE& state) {
  if (run.IsMeasuring()) {
    return Measuring(run);
  }
  if (run.LastOutcome() == LotRun::Outcome::kFault) {
    return {Text::tr("エラー"), kAttention, run.CurrentNumber(), run.FaultText()};
  }
  switch (run.WhatIsDue()) {
    case LotRun::Due::kBackground:
      return {Text::tr("準備"), kCalm, Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ測定"),
              Text::tr("ﾊﾞｯｸｸﾞﾗﾝﾄﾞの測定が必要です。")};
    case LotRun::Due::kReference:
      return {Text::tr("準備"), kCalm, Text::tr("ﾘﾌｧﾚﾝｽ測定"),
              Text::tr("ﾘﾌｧﾚﾝｽを置いてください。")};
    case LotRun::Due::kNothing:
      break;
  }
  switch (run.LastOutcome()) {
    case LotRun::Outcome::kJudged:
      return Judged(run, state);
    case LotRun::Outcome::kCancelled:
      return {Text::tr("中止"), kAttention, run.CurrentNumber(), {}};
    default:
      return {Text::tr("測定可"), kCalm, {}, Text::tr("レンズを置いてください。")};
  }
}

VerdictPanel::Content RepeatQuestion(const LotLens& lens, const QString& reason) {
  return {Text::tr("測定済み"), kAttention, lens.number,
          Text::tr("この番号は測定済みです (%1)。測り直しますか。\n理由: %2")
              .arg(LensStateText(lens.State()), reason)};
}

QColor LensStateColour(LensState state) {
  switch (state) {
    case LensState::kOk:
      return theme::kGood;
    case LensState::kNotGood:
      return theme::kBad;
    default:
      return kCalm;
  }
}

QString LensCounts(const LotTally& tally) {
  QString counts = Text::tr("レンズ %1   OK %2   NG %3")
                       .arg(tally.Lenses().size())
                       .arg(tally.Count(LensState::kOk))
                       .arg(tally.Count(LensState::kNotGood));
  for (const LensState state : {LensState::kUnjudged, LensState::kIncomplete, LensState::kHeld}) {
    if (tally.Count(state) > 0) {
      counts += QStringLiteral("   %1 %2").arg(LensStateText(state)).arg(tally.Count(state));
    }
  }
  return counts;
}

}  // namespace vexa

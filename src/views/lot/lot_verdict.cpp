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
      failures << (PanelText(slot.judgement, i) + u' ' + MarginText(slot.judgement, i)).trimmed();
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
  const Verdict verdict = lens == nullptr ? Verdict::kNone : lens->LensVerdict();
  const MeasurementSlot* slot = state.Slot(run.LastSlot());
  VerdictPanel::Content content{
      VerdictText(verdict), VerdictColour(verdict), run.CurrentNumber(), {}};
  if (verdict == Verdict::kNone) {
    content.word = Text::tr("測定済");
    content.details = Text::tr("判定する規格がありません。");
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
    case LotRun::Outcome::kHeld:
      return {Text::tr("保留"), kAttention, run.CurrentNumber(), run.HoldReason()};
    case LotRun::Outcome::kCancelled:
      return {Text::tr("中止"), kAttention, run.CurrentNumber(), {}};
    default:
      return {Text::tr("測定可"), kCalm, {}, Text::tr("レンズを置いてください。")};
  }
}

VerdictPanel::Content RepeatQuestion(const LotLens& lens, const QString& reason) {
  return {Text::tr("測定済み"), kAttention, lens.number,
          Text::tr("この番号は測定済みです (%1)。測り直しますか。\n理由: %2")
              .arg(VerdictText(lens.LensVerdict()), reason)};
}

QString VerdictText(Verdict verdict) {
  return verdict == Verdict::kNone ? QStringLiteral("-") : VerdictWord(verdict);
}

QColor VerdictColour(Verdict verdict) {
  switch (verdict) {
    case Verdict::kOk:
      return theme::kGood;
    case Verdict::kNotGood:
      return theme::kBad;
    case Verdict::kNone:
      break;
  }
  return kCalm;
}

}  // namespace vexa

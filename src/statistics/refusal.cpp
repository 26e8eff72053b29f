// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/refusal.h"

#include "base/translation.h"

namespace vexa::statistics {

QString RefusalText(Refusal refusal) {
  switch (refusal) {
    case Refusal::kNotANumber:
      return Text::tr("数値でない値、または大きすぎる値があります。");
    case Refusal::kTooFewValues:
      return Text::tr("データの数が足りません。");
    case Refusal::kNoSpread:
      return Text::tr("すべての値が同じで、ばらつきがありません。");
    case Refusal::kMissingLimit:
      return Text::tr("規格の上限も下限もありません。");
    case Refusal::kLimitsReversed:
      return Text::tr("規格の下限が上限より小さくありません。");
    case Refusal::kTooFewGroups:
      return Text::tr("部品、測定者、繰返しはそれぞれ2以上必要です。");
    case Refusal::kUnbalanced:
      return Text::tr("測定回数が部品と測定者のすべての組で同じではありません。");
    case Refusal::kArgument:
      return Text::tr("指定された値が範囲外です。");
  }
  return {};
}

}  // namespace vexa::statistics

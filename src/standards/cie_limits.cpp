// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/cie_limits.h"

#include <cmath>
#include <limits>

#include "base/number_text.h"

namespace vexa {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

double DeltaE00(const LabColour& target, const CieColour& colour) {
  ColourDifference difference;
  return CompareColours(target, {colour.L, colour.a, colour.b}, difference) ? difference.deltaE00
                                                                            : kNotANumber;
}

}  // namespace

CieJudgement JudgeCie(const std::optional<CieColour>& colour, const CieLimits& limits) {
  const auto judge = [&colour](const StandardLimits& asked, double CieColour::*value) {
    return JudgeValue(asked, colour ? (*colour).*value : kNotANumber);
  };
  return {judge(limits.luminousReflectance, &CieColour::Rv),
          judge(limits.L, &CieColour::L),
          judge(limits.a, &CieColour::a),
          judge(limits.b, &CieColour::b),
          judge(limits.chroma, &CieColour::C),
          JudgeHue(limits.hueAngle, colour ? colour->h : kNotANumber),
          JudgeValue(limits.deltaE00, colour ? DeltaE00(limits.target, *colour) : kNotANumber)};
}

QString CieMarginText(const CieJudgement& judgement, std::size_t group) {
  const std::optional<double>& margin = judgement[group].margin;
  return margin ? FormatNumber(std::abs(*margin), u"0.000#") +
                      QString::fromUtf8(kCieLimitsEntries[group].unit)
                : QString();
}

QStringList CieFailures(const CieJudgement& judgement) {
  QStringList failures;
  for (std::size_t i = 0; i < kCieGroupCount; ++i) {
    if (!judgement[i].passed.value_or(true)) {
      failures << QStringLiteral("%1:NG %2")
                      .arg(QString::fromUtf8(kCieLimitsEntries[i].symbol),
                           ShortfallText(CieMarginText(judgement, i)))
                      .trimmed();
    }
  }
  return failures;
}

}  // namespace vexa

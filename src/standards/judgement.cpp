// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/judgement.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "standards/reflectance_band.h"

namespace vexa {
namespace {

struct GroupTexts {
  const char* pass;
  const char* fail;
  const char16_t* marginPattern;
  const char* unit;
};

constexpr std::array<GroupTexts, kStandardGroupCount> kTexts{{
    {QT_TRANSLATE_NOOP("Text", "反射率:OK"), QT_TRANSLATE_NOOP("Text", "反射率:NG"), u"0.000#",
     " %"},
    {QT_TRANSLATE_NOOP("Text", "平均反射率:OK"), QT_TRANSLATE_NOOP("Text", "平均反射率:NG"),
     u"0.000#", " %"},
    {QT_TRANSLATE_NOOP("Text", "視感反射率:OK"), QT_TRANSLATE_NOOP("Text", "視感反射率:NG"),
     u"0.000#", " %"},
    {QT_TRANSLATE_NOOP("Text", "波長:OK"), QT_TRANSLATE_NOOP("Text", "波長:NG"), u"0.###", " nm"},
    {QT_TRANSLATE_NOOP("Text", "クロマC*:OK"), QT_TRANSLATE_NOOP("Text", "クロマC*:NG"), u"0.00##",
     ""},
    {QT_TRANSLATE_NOOP("Text", "色相角h[deg]:OK"), QT_TRANSLATE_NOOP("Text", "色相角h[deg]:NG"),
     u"0.00##", "°"},
}};

bool HueInRange(const StandardLimits& limits, double hueDeg) {
  if (limits.upper >= limits.lower) {
    return InRange(limits.lower, limits.upper, hueDeg);
  }
  return InRange(limits.lower, 360.0, hueDeg) || InRange(0.0, limits.upper, hueDeg);
}

double CircleDistanceDeg(double one, double other) {
  return std::abs(std::remainder(one - other, 360.0));
}

}  // namespace

bool InRange(double lower, double upper, double value) {
  return lower <= value && value <= upper;
}

GroupJudgement JudgeValue(const StandardLimits& limits, double value) {
  if (!limits.enabled) {
    return {};
  }
  if (std::isnan(value)) {
    return {false, std::nullopt};
  }
  return {InRange(limits.lower, limits.upper, value),
          std::min(limits.upper - value, value - limits.lower)};
}

GroupJudgement JudgeHue(const StandardLimits& limits, double hueDeg) {
  if (!limits.enabled) {
    return {};
  }
  const bool passed = HueInRange(limits, hueDeg);
  if (limits.upper - limits.lower >= 360.0 || std::isnan(hueDeg)) {
    return {passed, std::nullopt};  // the whole circle has no limit to be near to
  }
  const double distance =
      std::min(CircleDistanceDeg(hueDeg, limits.lower), CircleDistanceDeg(hueDeg, limits.upper));
  return {passed, passed ? distance : -distance};
}

void InterpolateLimit(double w1, double w2, double y1, double y2, double w, double& limit) {
  if (w2 - w1 < 1.0) {
    return;
  }
  const double slope = Divide(y2 - y1, w2 - w1);
  limit = y1 + slope * (w - w1);
}

int FindPeakBottom(const ReflectanceSpectrum& reflectance, int from, int to,
                   std::int16_t selector) {
  const int last = std::clamp(to, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  int found = std::clamp(from, ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
  for (int nm = found + 1; nm <= last; ++nm) {
    const bool better =
        selector != 0 ? reflectance[nm] > reflectance[found] : reflectance[nm] < reflectance[found];
    if (better) {
      found = nm;
    }
  }
  return found;
}

Judgement JudgeStandards(const ReflectanceSpectrum& reflectance, const ColourResult& colour,
                         const StandardSet& standard) {
  Judgement judgement;
  const auto group = [&judgement](StandardGroup which) -> GroupJudgement& {
    return judgement.groups[static_cast<std::size_t>(which)];
  };
  const auto ofColour = [&colour](double value) {
    return colour.IsComputed() ? value : std::numeric_limits<double>::quiet_NaN();
  };
  if (const auto band = JudgeReflectanceBand(reflectance, standard)) {
    group(StandardGroup::kReflectance) = {band->passed, band->margin};
    judgement.reflectancePassed = band->passed;
    judgement.bandMarginNm = band->marginNm;
  }
  group(StandardGroup::kAverageReflectance) = JudgeValue(standard.averageReflectance, colour.Rm);
  group(StandardGroup::kLuminousReflectance) =
      JudgeValue(standard.luminousReflectance, ofColour(colour.Y));
  group(StandardGroup::kWavelengthValue) =
      JudgeValue(standard.wavelengthValue.limits,
                 FindPeakBottom(reflectance, ReflectanceSpectrum::kFirstNm,
                                ReflectanceSpectrum::kLastNm, standard.wavelengthValue.selector));
  group(StandardGroup::kChroma) = JudgeValue(standard.chroma, ofColour(colour.C));
  group(StandardGroup::kHueAngle) = JudgeHue(standard.hueAngle, ofColour(colour.h));
  for (std::size_t i = 0; i < kStandardGroupCount; ++i) {
    if (const auto passed = judgement.groups[i].passed) {
      judgement.panelTexts[i] = QString::fromUtf8(*passed ? kTexts[i].pass : kTexts[i].fail);
    }
  }
  return judgement;
}

QString PanelText(const Judgement& judgement, std::size_t group) {
  const QString& text = judgement.panelTexts[group];
  return text.isEmpty() ? text : Text::tr(text.toUtf8().constData());
}

QString ShortfallText(const QString& margin) {
  return margin.isEmpty() ? margin : Text::tr("余裕 %1").arg(u'-' + margin);
}

QString MarginText(const Judgement& judgement, std::size_t group) {
  const std::optional<double>& margin = judgement.groups[group].margin;
  if (!margin) {
    return {};
  }
  const QString place = group == static_cast<std::size_t>(StandardGroup::kReflectance)
                            ? QStringLiteral(" (%1 nm)").arg(judgement.bandMarginNm)
                            : QString();
  const GroupTexts& texts = kTexts[group];
  return FormatNumber(std::abs(*margin), texts.marginPattern) + QString::fromUtf8(texts.unit) +
         place;
}

}  // namespace vexa

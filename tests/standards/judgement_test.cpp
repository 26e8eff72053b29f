// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/judgement.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <vector>

#include "standards/reflectance_band.h"
#include "standards/tolerance_region.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;

struct Condition {
  int nm;
  double upper;
  double lower;
  bool enabled = true;
};

StandardSet BandOf(const std::vector<Condition>& conditions) {
  StandardSet standard;
  standard.useReflectance = true;
  for (std::size_t k = 0; k < conditions.size(); ++k) {
    standard.wavelengths[k] = static_cast<std::int16_t>(conditions[k].nm);
    standard.conditions[k] = {conditions[k].enabled, conditions[k].upper, conditions[k].lower};
  }
  return standard;
}

QString PanelText(const Judgement& judgement, StandardGroup group) {
  return judgement.panelTexts[static_cast<std::size_t>(group)];
}

GroupJudgement Group(const Judgement& judgement, StandardGroup group) {
  return judgement.groups[static_cast<std::size_t>(group)];
}

const QString kOk = QStringLiteral("反射率:OK");
const QString kNg = QStringLiteral("反射率:NG");

// The spectrum is 1 % everywhere, 2 % at 550 nm and 0 at 700 nm.
TEST(JudgeStandards, ReflectanceBand) {
  ReflectanceSpectrum spectrum = Flat(1.0);
  spectrum[550] = 2.0;
  spectrum[700] = 0.0;
  const double huge = std::numeric_limits<double>::max();
  struct Case {
    const char* name;
    QString text;
    std::optional<double> margin;
    int marginNm;
    std::vector<Condition> conditions;
  };
  std::vector<Condition> ten(10, {440, 9, 0});
  ten[8].nm = 690;
  ten[9] = {840, 9, 0.5};
  const Case cases[] = {
      {"single point", kOk, 0.5, 600, {{600, 3, 0.5}}},
      {"single point on its upper limit", kOk, 0.0, 550, {{550, 2, 0}}},
      {"single point on its lower limit", kOk, 0.0, 700, {{700, 1, 0}}},
      {"single point above", kNg, -0.5, 550, {{550, 1.5, 0}}},
      {"single point at 900 nm", kNg, {}, 0, {{900, 3, 0}}},
      {"reversed limits", kNg, -2.0, 600, {{600, 0.5, 3}}},
      {"condition 1 off", {}, {}, 0, {{500, 1, 0, false}, {600, 1, 0}}},
      {"on the interpolated limit", kOk, 0.0, 500, {{500, 1, 0}, {600, 3, 0}}},
      {"above it in the middle", kNg, -0.25, 550, {{500, 1.25, 0}, {600, 2.25, 0}}},
      {"lower limit interpolated", kOk, 0.1, 700, {{640, 5, -1}, {740, 5, 0.5}}},
      {"conditions 1 nm apart", kNg, -0.5, 550, {{549, 9, 0}, {550, 1.5, 0}}},
      {"last end included", kNg, -0.5, 550, {{440, 3, 0}, {550, 1.5, 0}}},
      {"first end included", kNg, -0.5, 550, {{550, 1.5, 0}, {560, 3, 0}}},
      {"a later one mends nothing", kNg, -0.5, 550, {{545, 1.5, 0}, {555, 1.5, 0}, {600, 3, 0}}},
      {"4 is joined to 3, which is off",
       kNg,
       -0.5,
       700,
       {{440, 3, 0}, {500, 3, 0}, {690, 1, 0.5, false}, {710, 1, 0.5}}},
      {"a segment that runs backwards", kOk, {}, 0, {{600, 0.5, 0}, {500, 0.5, 0}}},
      {"backwards, then over it", kNg, -0.5, 550, {{600, 9, 0}, {540, 1.5, 0}, {560, 1.5, 0}}},
      {"both at one wavelength", kOk, 0.5, 550, {{550, 2.5, 0}, {550, 9, 0}}},
      {"beyond 840 nm", kNg, {}, 0, {{800, 3, 0}, {900, 3, 0}}},
      {"beyond everything", kNg, {}, 0, {{-32768, 3, 0}, {32767, 3, 0}}},
      {"limits that overflow", kNg, {}, 0, {{500, huge, 0}, {600, -huge, 0}}},
      {"ten conditions, the last segment fails", kNg, -0.5 * 10 / 150, 700, ten},
  };
  for (const Case& c : cases) {
    StandardSet standard = BandOf(c.conditions);
    const Judgement judgement = JudgeStandards(spectrum, {}, standard);
    const GroupJudgement band = Group(judgement, StandardGroup::kReflectance);
    EXPECT_EQ(PanelText(judgement, StandardGroup::kReflectance), c.text) << c.name;
    EXPECT_EQ(judgement.reflectancePassed, c.text == kOk) << c.name;
    ASSERT_EQ(band.margin.has_value(), c.margin.has_value()) << c.name;
    EXPECT_NEAR(band.margin.value_or(0.0), c.margin.value_or(0.0), 1e-12) << c.name;
    EXPECT_EQ(judgement.bandMarginNm, c.marginNm) << c.name;

    standard.useReflectance = false;
    EXPECT_EQ(PanelText(JudgeStandards(spectrum, {}, standard), StandardGroup::kReflectance),
              QString());
  }
}

TEST(JudgeStandards, GroupsOfOneValue) {
  ReflectanceSpectrum spectrum = Flat(1.0);
  spectrum[550] = spectrum[560] = 2.0;
  spectrum[700] = spectrum[710] = 0.0;
  const ColourResult colour{.x = 0.3, .y = 0.3, .C = 4.0, .Rm = 0.5, .Y = 0.25};
  struct Case {
    StandardGroup group;
    StandardLimits limits;
    const char* text;
    double margin;
    std::int16_t selector = 1;
  };
  using enum StandardGroup;
  const Case cases[] = {
      {kAverageReflectance, {true, 0.5, 0.25}, "平均反射率:OK", 0.0},
      {kAverageReflectance, {true, 2.0, 0.75}, "平均反射率:NG", -0.25},
      {kLuminousReflectance, {true, 1.0, 0.25}, "視感反射率:OK", 0.0},
      {kLuminousReflectance, {true, 0.0, 1.0}, "視感反射率:NG", -0.75},
      {kWavelengthValue, {true, 555.0, 540.0}, "波長:OK", 5.0, -1},
      {kWavelengthValue, {true, 555.0, 540.0}, "波長:NG", -145.0, 0},
      {kWavelengthValue, {true, 700.0, 700.0}, "波長:OK", 0.0, 0},
      {kChroma, {true, 5.0, 2.0}, "クロマC*:OK", 1.0},
      {kChroma, {true, 3.0, 2.0}, "クロマC*:NG", -1.0},
  };
  for (const Case& c : cases) {
    StandardSet standard;
    const std::map<StandardGroup, StandardLimits*> limits{
        {kAverageReflectance, &standard.averageReflectance},
        {kLuminousReflectance, &standard.luminousReflectance},
        {kWavelengthValue, &standard.wavelengthValue.limits},
        {kChroma, &standard.chroma}};
    *limits.at(c.group) = c.limits;
    standard.wavelengthValue.selector = c.selector;
    const Judgement judgement = JudgeStandards(spectrum, colour, standard);
    EXPECT_EQ(Group(judgement, c.group).margin, c.margin) << c.text;
    EXPECT_FALSE(judgement.reflectancePassed);
    for (std::size_t i = 0; i < kStandardGroupCount; ++i) {
      EXPECT_EQ(judgement.panelTexts[i],
                static_cast<StandardGroup>(i) == c.group ? QString::fromUtf8(c.text) : QString());
    }
  }
}

TEST(JudgeStandards, HueWrapsThroughZero) {
  struct Case {
    double upper;
    double lower;
    double hueDeg;
    bool passed;
    std::optional<double> margin;
  };
  const Case cases[] = {
      {10, 350, 355, true, 5.0},  {10, 350, 5, true, 5.0},     {10, 350, 180, false, -170.0},
      {10, 350, 350, true, 0.0},  {10, 350, 10, true, 0.0},    {10, 350, 0, true, 10.0},
      {90, 30, 45, true, 15.0},   {90, 30, 100, false, -10.0}, {350, 10, 1, false, -9.0},
      {350, 0, 355, false, -5.0}, {360, 0, 0.5, true, {}},     {-10, 370, 5, false, -5.0},
      {1000, -1000, 5, true, {}},
  };
  for (const Case& c : cases) {
    StandardSet standard;
    standard.hueAngle = {true, c.upper, c.lower};
    const Judgement judgement = JudgeStandards({}, {.x = 0.3, .h = c.hueDeg}, standard);
    const GroupJudgement hue = Group(judgement, StandardGroup::kHueAngle);
    EXPECT_EQ(hue.passed, c.passed) << c.upper << ' ' << c.lower << ' ' << c.hueDeg;
    EXPECT_EQ(hue.margin, c.margin) << c.upper << ' ' << c.lower << ' ' << c.hueDeg;
    EXPECT_EQ(PanelText(judgement, StandardGroup::kHueAngle),
              c.passed ? QStringLiteral("色相角h[deg]:OK") : QStringLiteral("色相角h[deg]:NG"));
  }
}

TEST(ReflectanceBand, IsTheJudgedLimitsInSegments) {
  EXPECT_TRUE(ReflectanceBand({}).empty());
  EXPECT_TRUE(ReflectanceBand(BandOf({{900, 1, 0}})).empty());

  const auto single = ReflectanceBand(BandOf({{600, 3, 1}}));
  ASSERT_EQ(single.size(), 1U);
  ASSERT_EQ(single[0].size(), 1U);
  EXPECT_EQ(single[0][0].nm, 600);

  const auto band = ReflectanceBand(
      BandOf({{500, 1, 0}, {600, 3, 1}, {610, 3, 1, false}, {590, 3, 3}, {900, 4, 3}}));
  ASSERT_EQ(band.size(), 2U);
  ASSERT_EQ(band[0].size(), 101U);
  EXPECT_EQ(band[0][50].nm, 550);
  EXPECT_DOUBLE_EQ(band[0][50].upper, 2.0);
  EXPECT_DOUBLE_EQ(band[0][50].lower, 0.5);
  ASSERT_EQ(band[1].size(), 251U);
  EXPECT_EQ(band[1].front().nm, 590);
  EXPECT_EQ(band[1].back().nm, 840);
  EXPECT_DOUBLE_EQ(band[1].back().upper, 3.0 + 250.0 / 310.0);
}

TEST(FindPeakBottom, ShortestAmongEqualsWithinItsRange) {
  ReflectanceSpectrum spectrum = Flat(1.0);
  EXPECT_EQ(FindPeakBottom(spectrum, 440, 840, 1), 440);
  EXPECT_EQ(FindPeakBottom(spectrum, 500, 400, 0), 500);
  spectrum[840] = 5.0;
  spectrum[445] = -5.0;
  EXPECT_EQ(FindPeakBottom(spectrum, 0, 10000, 1), 840);
  EXPECT_EQ(FindPeakBottom(spectrum, 0, 10000, 0), 445);
  EXPECT_EQ(FindPeakBottom(spectrum, 446, 839, 0), 446);
}

TEST(ToleranceRegionOf, ShowsWhatIsOn) {
  for (const bool on : {false, true}) {
    StandardSet standard;
    standard.chroma = {on, 5.0, -2.0};
    standard.hueAngle = {on, 10.0, 350.0};
    const ToleranceRegion region = ToleranceRegionOf(standard, {on, 3.0}, {on, 90.0});
    const std::vector<double> none;
    EXPECT_EQ(region.chromaRadii, on ? std::vector({5.0, 2.0}) : none);
    EXPECT_EQ(region.hueAnglesDeg, on ? std::vector({10.0, 350.0}) : none);
    EXPECT_EQ(region.referenceChroma, on ? std::optional(3.0) : std::nullopt);
    EXPECT_EQ(region.referenceHueDeg, on ? std::optional(90.0) : std::nullopt);
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_check.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

/// Every group on, and nothing wrong with any.
StandardSet GoodStandard() {
  StandardSet standard;
  standard.useReflectance = true;
  standard.wavelengths = {440, 840, 600, 550, 550, 0, -5, 900, 440, 440};
  for (std::size_t k = 0; k < 3; ++k) {
    standard.conditions[k] = {true, 2.0, 0.0};
  }
  standard.conditions[3] = {true, 1.0, 1.0};
  standard.conditions[4] = {false, -1.0, 5.0};  // off: whatever stands there
  standard.averageReflectance = standard.luminousReflectance = {true, 3.0, 1.0};
  standard.wavelengthValue.limits = {true, 840.0, 440.0};
  standard.chroma = {true, 5.0, 0.0};
  standard.hueAngle = {true, 10.0, 350.0};  // through 0
  return standard;
}

TEST(CheckStandardSet, TheFirstFaultInTheOrderOfTheGroups) {
  struct Case {
    void (*spoil)(StandardSet& standard);
    std::optional<Message> fault;
    const char* group = "";
  };
  const Case cases[] = {
      {[](StandardSet&) {}, {}},
      {[](StandardSet& s) { s.wavelengths[1] = 841; }, Message::kStandardOutOfRange, "反射率規格"},
      {[](StandardSet& s) { s.conditions[3].lower = -0.1; }, Message::kStandardNegative,
       "反射率規格"},
      {[](StandardSet& s) { s.conditions[2].lower = 2.1; }, Message::kStandardReversed,
       "反射率規格"},
      {[](StandardSet& s) { s.wavelengths[3] = 440; }, Message::kStandardSameWavelength,
       "反射率規格"},
      {[](StandardSet& s) {
         s.conditions[4] = {true, 1.0, 0.0};
       },
       Message::kStandardSameWavelength, "反射率規格"},
      {[](StandardSet& s) { s.averageReflectance.lower = -1.0; }, Message::kStandardNegative,
       "平均反射率規格"},
      {[](StandardSet& s) { s.wavelengthValue.limits.upper = 840.5; }, Message::kStandardOutOfRange,
       "波長値規格"},
      {[](StandardSet& s) {
         s.wavelengthValue.limits = {true, 500.0, 600.0};
       },
       Message::kStandardReversed, "波長値規格"},
      {[](StandardSet& s) { s.chroma.upper = s.chroma.lower = -1.0; }, Message::kStandardNegative,
       "クロマ規格"},
      {[](StandardSet& s) { s.chroma.lower = 6.0; }, Message::kStandardReversed, "クロマ規格"},
      {[](StandardSet& s) { s.hueAngle.lower = 360.1; }, Message::kStandardHueOutOfRange,
       "色相角規格"},
      {[](StandardSet& s) { s.hueAngle.upper = -0.1; }, Message::kStandardHueOutOfRange,
       "色相角規格"},
      {[](StandardSet& s) { s.luminousReflectance.upper = 0.0; }, Message::kStandardReversed,
       "視感反射率規格"},
      // the order of the groups
      {[](StandardSet& s) { s.luminousReflectance.upper = s.hueAngle.upper = -1.0; },
       Message::kStandardHueOutOfRange, "色相角規格"},
      {[](StandardSet& s) { s.averageReflectance.upper = s.conditions[0].upper = -1.0; },
       Message::kStandardNegative, "反射率規格"},
      // groups that are off are not looked at
      {[](StandardSet& s) {
         s.wavelengths[0] = 900;
         s.useReflectance = false;
         for (StandardLimits* limits : {&s.averageReflectance, &s.luminousReflectance,
                                        &s.wavelengthValue.limits, &s.chroma, &s.hueAngle}) {
           *limits = {false, -5.0, 1000.0};
         }
       },
       {}},
  };
  for (const Case& c : cases) {
    StandardSet standard = GoodStandard();
    c.spoil(standard);
    EXPECT_EQ(
        CheckStandardSet(standard),
        c.fault ? std::optional(MessageCall{*c.fault, {QString::fromUtf8(c.group)}}) : std::nullopt)
        << c.group;
  }
  EXPECT_FALSE(CheckStandardSet({})) << "the defaults";
}

}  // namespace
}  // namespace vexa

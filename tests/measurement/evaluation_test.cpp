// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/evaluation.h"

#include <gtest/gtest.h>

#include "support/slots.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;
using test::Verdicts;

TEST(Evaluation, AgainIsOfEveryValidSlotAndAccumulatesNothing) {
  VEXATYPE state;
  state.accumulate = true;
  for (int number = 1; number <= kSlotCount; ++number) {
    state.Slot(number)->reflectance = Flat(number);
    state.Slot(number)->valid = number != 2;
  }
  state.standard.averageReflectance = {true, 3.0, 0.0};
  EvaluateAgain(state);
  EXPECT_EQ(Verdicts(*state.Slot(1)), "-y----");
  EXPECT_EQ(Verdicts(*state.Slot(2)), "------");
  EXPECT_EQ(Verdicts(*state.Slot(10)), "-n----");
  EXPECT_EQ(state.Slot(10)->colour.Rm, 10.0);
  EXPECT_EQ(state.Slot(2)->colour, ColourResult());
  EXPECT_EQ(state.stock.Count, 0);
}

TEST(Evaluation, NothingIsLeftOfTheSpectrumBefore) {
  MeasurementSlot slot;
  ColourSettings settings;
  slot.reflectance = test::SpectrumOf([](int nm) { return 4.0 + nm / 1000.0; });
  ComputeColours(settings, slot);
  EXPECT_NEAR(slot.colour.Rm, 4.64, 1e-12);
  EXPECT_TRUE(slot.colour.IsComputed());
  slot.reflectance = Flat(0.0);
  ComputeColours(settings, slot);
  EXPECT_EQ(slot.colour, ColourResult()) << "a dark sample";
  slot.reflectance = Flat(4.0);
  settings.avgFrom = 700;
  settings.avgTo = 699;
  ComputeColours(settings, slot);
  EXPECT_EQ(slot.colour.Rm, 0.0) << "a range that has no mean";
  EXPECT_TRUE(slot.colour.IsComputed());
}

TEST(Evaluation, AThicknessNeedsWhatItsSettingsName) {
  struct Case {
    const char* name;
    std::int16_t type, kind, index;
    bool hasFilm, hasSubstrate, hasFringes;
    Status status;
  };
  using Type = ThicknessType;
  using Kind = ThicknessKind;
  using Index = DispersionKind;
  const Case cases[] = {
      {"physical", Type::kB, Kind::kPhysical, Index::kFixedValue, true, false, true, 0},
      {"the film's index is not loaded", Type::kB, Kind::kPhysical, Index::kIndexFile, false, true,
       true, kIndexMissing},
      {"an optical one needs no index", Type::kB, Kind::kOptical, Index::kIndexFile, false, false,
       true, 0},
      {"from the substrate's index", Type::kB, Kind::kPhysical, Index::kSubstrate, false, true,
       true, 0},
      {"which is not loaded", Type::kB, Kind::kPhysical, Index::kSubstrate, true, false, true,
       kIndexMissing},
      {"nor is it for an optical one", Type::kA, Kind::kOptical, Index::kSubstrate, true, false,
       true, kIndexMissing},
      {"type C gives no index", Type::kC, Kind::kPhysical, Index::kSubstrate, true, true, true,
       kThicknessFault},
      {"no extrema", Type::kB, Kind::kPhysical, Index::kFixedValue, true, true, false,
       kTooFewExtrema},
  };
  for (const Case& c : cases) {
    VEXATYPE state;
    state.thickness.type = c.type;
    state.thickness.kind = c.kind;
    state.thickness.coat.kind = c.index;
    state.filmIndex = Flat(c.hasFilm ? 1.5 : 0.0);
    state.substrateIndex = Flat(c.hasSubstrate ? 1.6 : 0.0);
    MeasurementSlot slot;
    slot.reflectance = c.hasFringes ? test::Fringes() : Flat(4.0);
    slot.thickness.thicknessNm = 1500.0;
    slot.thickness.first = {500.0, 1.0};
    slot.filmIndex = Flat(9.0);
    EXPECT_EQ(ComputeSlotThickness(state, slot), c.status) << c.name;
    EXPECT_EQ(slot.thickness.IsComputed(), c.status == 0) << c.name;
    EXPECT_EQ(slot.thickness.thicknessNm > 0.0, c.status == 0) << c.name;
    EXPECT_EQ(slot.filmIndex.IsEmpty(), c.status != 0 || c.index != Index::kSubstrate) << c.name;
    EXPECT_EQ(state.filmIndex, Flat(c.hasFilm ? 1.5 : 0.0)) << c.name;
  }
}

}  // namespace
}  // namespace vexa

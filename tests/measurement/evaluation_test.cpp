// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/evaluation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/prepared_answers.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Flat;

class Evaluation : public testing::Test {
 protected:
  // The verdicts of a slot: a letter for each group in order, "-" where it was not judged.
  [[nodiscard]] std::string Verdicts(int number) const {
    std::string verdicts;
    for (const GroupJudgement& group : state.Slot(number)->judgement.groups) {
      verdicts += !group.passed ? '-' : *group.passed ? 'y' : 'n';
    }
    return verdicts;
  }

  VEXATYPE state;
  test::PreparedAnswers messages;
};

TEST_F(Evaluation, LeavesNothingOfTheSampleBefore) {
  MeasurementSlot& slot = *state.Slot(10);
  state.accumulate = true;
  for (StandardLimits* limits :
       {&state.standard.averageReflectance, &state.standard.luminousReflectance,
        &state.standard.chroma, &state.standard.hueAngle}) {
    *limits = {true, 360.0, 0.0};
  }
  slot.reflectance = test::SpectrumOf([](int nm) { return 4.0 + nm / 1000.0; });
  EvaluateSlot(state, slot, messages);
  EXPECT_EQ(Verdicts(10), "-yy-yy");
  EXPECT_NEAR(slot.colour.Rm, 4.64, 1e-12);
  EXPECT_EQ(state.stock.Count, 1);
  EXPECT_EQ(state.stock.P1[0], slot.colour.x);

  slot.reflectance = Flat(0.0);
  EvaluateSlot(state, slot, messages);
  EXPECT_EQ(slot.colour, ColourResult()) << "a dark sample";
  EXPECT_EQ(Verdicts(10), "-yn-nn") << "no colour meets no limit, though all begin at 0";
  EXPECT_EQ(state.stock.Count, 1) << "and has no place in a diagram";

  slot.reflectance = Flat(4.0);
  state.colour.avgFrom = 700;
  state.colour.avgTo = 699;
  EvaluateSlot(state, slot, messages);
  EXPECT_EQ(slot.colour.Rm, 0.0) << "a range that has no mean";
  EXPECT_EQ(state.stock.Count, 2);
  EXPECT_TRUE(messages.Take().empty());
}

TEST_F(Evaluation, TellsOfAFullStockAndJudgesAllTheSame) {
  state.accumulate = true;
  state.standard.averageReflectance = {true, 5.0, 0.0};
  MeasurementSlot& slot = *state.Slot(1);
  slot.reflectance = Flat(4.0);
  for (int i = 1; i <= 101; ++i) {
    slot.judgement = {};
    EvaluateSlot(state, slot, messages);
    EXPECT_EQ(messages.Take().size(), i < 100 ? 0U : 1U) << i;
    EXPECT_EQ(Verdicts(1), "-y----");
  }
  state.accumulate = false;
  EvaluateSlot(state, slot, messages);
  EXPECT_TRUE(messages.Take().empty());
}

TEST_F(Evaluation, AgainIsOfEveryValidSlotAndAccumulatesNothing) {
  state.accumulate = true;
  for (int number = 1; number <= kSlotCount; ++number) {
    state.Slot(number)->reflectance = Flat(number);
    state.Slot(number)->valid = number != 2;
  }
  state.standard.averageReflectance = {true, 3.0, 0.0};
  EvaluateAgain(state);
  EXPECT_EQ(Verdicts(1), "-y----");
  EXPECT_EQ(Verdicts(2), "------");
  EXPECT_EQ(Verdicts(10), "-n----");
  EXPECT_EQ(state.Slot(10)->colour.Rm, 10.0);
  EXPECT_EQ(state.Slot(2)->colour, ColourResult());
  EXPECT_EQ(state.stock.Count, 0);
}

TEST_F(Evaluation, ThicknessThatFailsLeavesNoneBehind) {
  state.thickness.type = ThicknessType::kB;
  state.thickness.kind = ThicknessKind::kOptical;
  MeasurementSlot& slot = *state.Slot(1);
  slot.reflectance =
      test::SpectrumOf([](int nm) { return nm % 100 == 50 ? 9.0 : 4.0 + nm / 1000.0; });
  EXPECT_EQ(ComputeSlotThickness(state, slot, messages), 0);
  EXPECT_GT(slot.thickness.thicknessNm, 0.0);
  EXPECT_GT(state.extrema.count, 1);
  EXPECT_TRUE(messages.Take().empty());

  slot.reflectance = Flat(0.0);
  EXPECT_EQ(ComputeSlotThickness(state, slot, messages), -1);
  EXPECT_FALSE(slot.thickness.IsComputed());
  EXPECT_EQ(slot.thickness.thicknessNm, 0.0);
  EXPECT_EQ(state.extrema.count, 0);
  EXPECT_EQ(messages.Take().size(), 1U);
}

}  // namespace
}  // namespace vexa

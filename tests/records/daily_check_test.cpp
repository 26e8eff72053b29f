// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/daily_check_events.h"

#include <gtest/gtest.h>

#include <cmath>

#include "records/samples.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

using enum CheckValue;
using enum CheckVerdict;

/// A station that was checked once a day, from the first of October on.
class DailyChecks : public testing::Test {
 protected:
  /// A check of that day whose values all lie so far from 100.
  static DailyCheck Check(int day, double off, std::int16_t samplingTimeMs = 3000) {
    DailyCheck check{
        {}, QDateTime({2026, 10, 1}, {8, 0}).addDays(day), QStringLiteral("川口"), {}, {}};
    check.conditions.samplingTimeMs = samplingTimeMs;
    check.values.fill(100.0 + off);
    return check;
  }

  /// So many days that swing by 1 about 100: limits at 100 -+ 5.32, sigma 1.773.
  static std::vector<DailyCheck> Days(int count) {
    std::vector<DailyCheck> checks;
    for (int day = 0; day < count; ++day) {
      checks.push_back(Check(day, day % 2 == 0 ? 1.0 : -1.0));
    }
    return checks;
  }

  void Keep(const EventRecord& event) {
    EXPECT_TRUE(KeepEvent(path, event)) << event.type.toStdString();
  }

  void KeepRed(int day) { Keep(CheckEvent({Check(day, 9.0), {kRed, {{kLamp840, 1}}}}, station)); }

  std::optional<VerdictHold> Hold() const {
    const auto hold = FindVerdictHold(path);
    EXPECT_TRUE(hold);
    return hold.value;
  }

  Decision Decide(int day) const {
    return {station, QStringLiteral("品質"), QStringLiteral("ﾗﾝﾌﾟ交換"),
            QDateTime({2026, 10, 1}, {9, 0}).addDays(day)};
  }

  const test::TemporaryFiles files;
  const QString path = files.Path("records.db");
  const QString station = QStringLiteral("1号機");
};

TEST_F(DailyChecks, LimitsNeedTwentyDaysAndASpread) {
  const CheckConditions conditions = Check(0, 0.0).conditions;
  std::vector<DailyCheck> flat = Days(20);
  for (DailyCheck& check : flat) {
    check.values[static_cast<std::size_t>(kDarkLevel)] = 10.0;
  }
  std::vector<DailyCheck> twice = Days(19);
  twice.push_back(Check(18, 0.0));  // a second one on the same day
  std::vector<DailyCheck> mixed = Days(20);
  mixed[3].conditions.samplingTimeMs = 1000;
  struct Case {
    const char* name;
    std::vector<DailyCheck> checks;
    bool limits;
    std::optional<CheckValue> refused;
  };
  for (const Case& c :
       {Case{"nineteen", Days(19), false, {}}, Case{"twenty", Days(20), true, {}},
        Case{"same day", twice, false, {}}, Case{"other sampling", mixed, false, {}},
        Case{"no spread", flat, false, kDarkLevel}}) {
    const auto result = ComputeCheckLimits(c.checks, conditions, {});
    EXPECT_EQ(result.limits.has_value(), c.limits) << c.name;
    EXPECT_EQ(result.refusal.value, c.refused) << c.name;
  }
  const auto limits = ComputeCheckLimits(Days(20), conditions, {}).limits;
  EXPECT_NEAR(limits->lines[0].upper, 105.32, 1e-9);
}

TEST_F(DailyChecks, ACheckIsRedByTheRuleThatItBreaks) {
  const auto limits =
      ComputeCheckLimits(Days(20), Check(0, 0.0).conditions, Check(19, 0.0).time).limits;
  struct Case {
    const char* name;
    std::vector<double> offs;  // of the checks since the limits hold
    CheckVerdict verdict;
    int rule;
  };
  for (const Case& c :
       {Case{"within", {1.0, -5.3}, kGreen, 0}, Case{"beyond 3 sigma", {5.4}, kRed, 1},
        Case{"two of three beyond 2", {3.6, 0.0, 3.6}, kRed, 2},
        Case{"seven on one side", {.1, .1, .1, .1, .1, .1, .1}, kGreen, 0},
        Case{"eight on one side", {.1, .1, .1, .1, .1, .1, .1, .1}, kRed, 4},
        Case{"the alarm is over", {5.4, -1.0}, kGreen, 0},
        Case{"no number", {std::nan("")}, kRed, 1}}) {
    std::vector<DailyCheck> checks = Days(20);
    for (const double off : c.offs) {
      checks.push_back(Check(static_cast<int>(checks.size()), 0.0));
      checks.back().values[static_cast<std::size_t>(kLamp600)] += off;
    }
    const CheckJudgement judgement = JudgeCheck(checks, limits);
    EXPECT_EQ(judgement.verdict, c.verdict) << c.name;
    if (c.rule != 0) {
      // The other values of these checks all lie on the centre line.
      ASSERT_EQ(judgement.findings, (std::vector<CheckFinding>{{kLamp600, c.rule}})) << c.name;
    }
  }
  std::vector<DailyCheck> other = Days(20);
  other.push_back(Check(20, 0.0, 1000));
  EXPECT_EQ(JudgeCheck(other, limits).verdict, kOtherConditions);
  EXPECT_EQ(JudgeCheck(other, std::nullopt).verdict, kCollecting);
}

TEST_F(DailyChecks, ARedCheckHoldsTheVerdictsOfItsStationUntilItIsReleased) {
  EXPECT_FALSE(Hold()) << "no store yet";
  Keep(CheckEvent({Check(1, 0.0), {kGreen, {}}}, station));
  EXPECT_FALSE(Hold());
  KeepRed(2);
  ASSERT_TRUE(Hold());
  EXPECT_EQ(Hold()->findings, (std::vector<CheckFinding>{{kLamp840, 1}}));
  EXPECT_TRUE(Hold()->Why().contains(QStringLiteral("840 nm")));
  Keep(ReleaseEvent(*Hold(), Decide(2)));
  EXPECT_FALSE(Hold());
  KeepRed(3);
  EXPECT_TRUE(Hold()) << "a release is for one check";
  Keep(SettingsEvent({{440, 550, 840}, false}, Decide(3)));
  EXPECT_FALSE(Hold()) << "switched off";
  Keep(SettingsEvent({{440, 550, 840}, true}, Decide(4)));
  EXPECT_TRUE(Hold());
  Keep(CheckEvent({Check(5, 0.0), {kGreen, {}}}, QStringLiteral("2号機")));
  EXPECT_FALSE(Hold()) << "the next check is green, whatever the station is called by then";
}

TEST_F(DailyChecks, ASearchTellsWhoseVerdictIsHeldUntilItsCheckIsReleased) {
  RecordStore store;
  ASSERT_EQ(store.Open(path, RecordStore::Mode::kWrite), StoreFault::kNone);
  const QList<Row> held = test::SampleRows(1);
  const QList<Row> free = test::SampleRows(2);
  ASSERT_TRUE(store.Append(held + free));
  KeepRed(1);
  const VerdictHold hold = *Hold();
  Keep(HeldEvent(hold, held.constLast().id, Decide(1)));
  const auto heldBy = [&store](const QString& id) {
    RecordQuery query;
    query.id = id;
    return store.Search(query).value.constFirst().heldBy;
  };
  EXPECT_EQ(heldBy(held.constLast().id), hold.checkId);
  EXPECT_EQ(heldBy(free.constLast().id), QString());
  Keep(CheckEvent({Check(2, 0.0), {kGreen, {}}}, station));
  EXPECT_EQ(heldBy(held.constLast().id), hold.checkId) << "it was measured before";
  Keep(ReleaseEvent(hold, Decide(3)));
  EXPECT_EQ(heldBy(held.constLast().id), QString());
}

TEST_F(DailyChecks, WhatIsKeptComesBack) {
  const auto limits =
      ComputeCheckLimits(Days(20), Check(0, 0.0).conditions, Decide(20).time).limits;
  for (const DailyCheck& check : Days(3)) {
    Keep(CheckEvent({check, {kCollecting, {}}}, station));
  }
  DailyCheck broken = Check(3, 0.0);
  broken.values[2] = std::nan("");
  Keep(CheckEvent({broken, {kRed, {{kThirdReflectance, 1}}}}, station));
  Keep(LimitsEvent(*limits, Decide(20)));
  Keep(SettingsEvent({{441, 600, 839}, false}, Decide(21)));
  const auto loaded = LoadDailyChecks(path);
  ASSERT_TRUE(loaded);
  const DailyCheckHistory& history = loaded.value;
  ASSERT_EQ(history.checks.size(), 4U);
  EXPECT_EQ(history.checks[1].check.values, Days(2)[1].values);
  EXPECT_EQ(history.checks[1].check.time, Days(2)[1].time);
  EXPECT_EQ(history.checks[1].check.conditions, Days(2)[1].conditions);
  EXPECT_TRUE(std::isnan(history.checks[3].check.values[2]));
  EXPECT_EQ(history.settings, (CheckSettings{{441, 600, 839}, false}));
  ASSERT_TRUE(history.limits);
  EXPECT_EQ(history.limits->frozenAt, Decide(20).time);
  EXPECT_EQ(history.limits->days, 20);
  EXPECT_EQ(history.limits->lines[7].upper, limits->lines[7].upper);
}

TEST_F(DailyChecks, ValuesOfFramesStandAtTheirShiftedWavelengths) {
  RawSpectrum background;
  RawSpectrum reference;
  ReflectanceSpectrum piece;
  for (int nm = 440; nm <= 848; ++nm) {
    background[nm] = nm % 2 == 0 ? 21.0 : 19.0;
    reference[nm] = 10.0 * nm;
  }
  for (int nm = 440; nm <= 840; ++nm) {
    piece[nm] = nm / 100.0;
  }
  CheckConditions conditions;
  conditions.calibrationShiftNm = 4;
  const CheckValues values = ComputeCheckValues(background, reference, piece, conditions);
  const CheckValues expected{4.5,           5.5, 6.5, 4419.0, 6019.0, 8419.0, 20.0 + 1.0 / 409,
                             std::sqrt(2.0)};
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    EXPECT_NEAR(values[i], expected[i], 1e-9) << i;
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/gauge_plan.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "records/daily_check_events.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

GaugePlan Plan() {
  GaugePlan plan;
  plan.begun = QDateTime({2026, 11, 1}, {8, 0});
  plan.name = QStringLiteral("ﾚﾝｽﾞ");
  plan.value = {Quantity::kReflectance, 600};
  plan.parts = 3;
  plan.operators = QStringList{QStringLiteral("川口"), QStringLiteral("b")};
  plan.repeats = 2;
  plan.tolerance = 0.5;
  plan.seed = 7;
  return plan;
}

TEST(GaugePlan, RefusesWhatCannotBeAnalysed) {
  EXPECT_TRUE(Plan().IsValid());
  const auto changed = [](auto change) {
    GaugePlan plan = Plan();
    change(plan);
    return plan.IsValid();
  };
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.parts = 1; }));
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.parts = 51; }));
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.repeats = 1; }));
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.operators.removeLast(); }));
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.operators[1] = plan.operators[0]; }));
  EXPECT_FALSE(changed([](GaugePlan& plan) { plan.operators[1].clear(); }));
}

TEST(GaugePlan, EveryMeasurementComesOnceInAnOrderOfItsSeed) {
  const std::vector<GaugeTask> order = OrderOf(Plan());
  std::set<std::tuple<int, int, int>> once;
  for (const GaugeTask& task : order) {
    once.insert({task.part, task.gaugeOperator, task.repeat});
  }
  EXPECT_EQ(order.size(), 12U);
  EXPECT_EQ(once.size(), 12U);
  EXPECT_EQ(order, OrderOf(Plan()));
  std::set<int> firstParts;
  for (quint32 seed = 0; seed < 40; ++seed) {
    GaugePlan plan = Plan();
    plan.seed = seed;
    firstParts.insert(OrderOf(plan).front().part);
  }
  EXPECT_EQ(firstParts.size(), 3U) << "every part may come first";
}

TEST(GaugePlan, GoesOnWhereItWasLeft) {
  const test::TemporaryFiles files;
  const QString path = files.Path("records.db");
  const QString station = QStringLiteral("1号機");
  EXPECT_TRUE(LoadGaugeSessions(path).value.empty()) << "no store yet";
  GaugePlan plan = Plan();
  plan.id = KeepEvent(path, PlanEvent(plan, station)).value;
  const auto keep = [&](std::size_t place, double value, int minute) {
    EXPECT_TRUE(KeepEvent(
        path,
        ReadingEvent(plan, {place, value, {}, {}, plan.begun.addSecs(60 * minute), station})));
  };
  keep(0, 1.5, 1);
  keep(2, 9.0, 2);
  keep(2, 2.5, 3);  // again: the later one counts
  const auto sessions = LoadGaugeSessions(path).value;
  ASSERT_EQ(sessions.size(), 1U);
  const GaugeSession& session = sessions.front();
  EXPECT_EQ(session.plan.operators, plan.operators);
  EXPECT_EQ(session.plan.value, plan.value);
  EXPECT_EQ(session.plan.tolerance, plan.tolerance);
  EXPECT_EQ(session.order, OrderOf(plan));
  EXPECT_EQ(session.values[2], 2.5);
  EXPECT_EQ(session.Next(), 1U);
  EXPECT_EQ(session.Done(), 2U);
  EXPECT_EQ(ReadingsOf(session).readings.size(), 2U);
}

TEST(GaugePlan, RecordsAreReadingsByTheirSampleNumberAndOperator) {
  ValueSeries series;
  for (const char* row : {"1 a", "2 a", "1 b", "2 b"}) {
    ValuePoint& point = series.points.emplace_back();
    point.sampleNumber = QString::fromLatin1(row).left(1);
    point.operatorName = QString::fromLatin1(row).right(1);
    point.value = static_cast<double>(series.points.size());
  }
  const GaugeReadings readings = ReadingsOf(series, {});
  ASSERT_EQ(readings.readings.size(), 4U);
  EXPECT_EQ(readings.readings[2].part, 0);
  EXPECT_EQ(readings.readings[2].gaugeOperator, 1);
  EXPECT_EQ(readings.readings[2].value, 3.0);
  EXPECT_EQ(readings.operators.join(u' '), QStringLiteral("a b"));
}

}  // namespace
}  // namespace vexa

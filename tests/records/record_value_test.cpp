// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/record_value.h"

#include <gtest/gtest.h>

#include "records/record_store.h"
#include "records/samples.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

TEST(RecordValue, EachQuantityHasItsPlaceInTheRecord) {
  SampleRecord sample;
  sample.colour = {1.0, 2.0, 3.0, 0.3, 0.3, 4.0, 5.0, 6.0, 7.0};
  sample.reflectance[600] = 8.0;
  sample.thickness.emplace().thicknessNm = 9.0;
  sample.cie = QJsonObject{{QStringLiteral("Rv"), 10.0}, {QStringLiteral("h"), QJsonValue()}};
  struct Case {
    const char* key;
    std::optional<double> value;
  };
  for (const Case& c :
       {Case{"L", 1.0}, Case{"a", 2.0}, Case{"b", 3.0}, Case{"C", 4.0}, Case{"h", 5.0},
        Case{"Rm", 6.0}, Case{"Y", 7.0}, Case{"reflectance", 8.0}, Case{"thickness", 9.0},
        Case{"cieRv", 10.0}, Case{"cieH", std::nullopt}, Case{"cieL", std::nullopt}}) {
    const auto quantity = QuantityOf(QLatin1String(c.key));
    ASSERT_TRUE(quantity) << c.key;
    EXPECT_EQ(ValueOf(sample, {*quantity, 600}), c.value) << c.key;
  }
  // The pair of Sharma, Wu and Dalal, Color Res. Appl. 30 (2005), Table I, line 25.
  sample.cie = QJsonObject{{QStringLiteral("L"), 60.4626},
                           {QStringLiteral("a"), -34.1751},
                           {QStringLiteral("b"), 39.4387}};
  sample.cieLimits.target = {60.2574, -34.0099, 36.2677};
  EXPECT_FALSE(ValueOf(sample, {Quantity::kCieDeltaE00})) << "no recipe names a target";
  sample.cieLimits.deltaE00.enabled = true;
  EXPECT_NEAR(ValueOf(sample, {Quantity::kCieDeltaE00}).value_or(0.0), 1.2644, 5e-5);
  sample.cie.reset();
  sample.thickness.reset();
  EXPECT_FALSE(ValueOf(sample, {Quantity::kThickness}));
  EXPECT_FALSE(ValueOf(sample, {Quantity::kCieLuminousReflectance}));
  EXPECT_FALSE(QuantityOf(QStringLiteral("Rv"))) << "the instrument's own Y is none";
}

TEST(RecordValue, LimitsAreThoseOfTheStandardForTheSameValue) {
  StandardSet standard;
  standard.useReflectance = true;
  standard.wavelengths[1] = 600;
  standard.conditions[1] = {true, 2.0, 1.0};
  standard.luminousReflectance = {true, 0.5, 0.0};
  standard.chroma = {false, 9.0, 1.0};
  const auto upper = [&standard](Quantity quantity, int nm) {
    return LimitsOf(standard, {quantity, nm}).upper;
  };
  EXPECT_EQ(upper(Quantity::kReflectance, 600), 2.0);
  EXPECT_EQ(upper(Quantity::kReflectance, 601), std::nullopt);
  EXPECT_EQ(upper(Quantity::kLuminousReflectance, 0), 0.5);
  EXPECT_EQ(upper(Quantity::kCieLuminousReflectance, 0), std::nullopt);
  EXPECT_EQ(upper(Quantity::kChroma, 0), std::nullopt) << "a group that is off";
  EXPECT_EQ(LimitsOf(standard, {Quantity::kLuminousReflectance}).lower, std::nullopt)
      << "nothing reflects less than 0";
  standard.hueAngle = {true, 20.0, 340.0};
  for (const double hue : {-5.0, 5.0, 355.0}) {
    const auto limits = NearestTurn(LimitsOf(standard, {Quantity::kHue}), hue);
    EXPECT_TRUE(*limits.lower < hue && hue < *limits.upper) << hue;
  }
}

TEST(RecordValue, LimitsOfCieValuesAreThoseOfTheRecipe) {
  CieLimits limits;
  limits.a = {true, 3.0, -CieLimits::kNone};
  limits.chroma = {true, 5.0, 0.0};
  limits.hueAngle = {true, 20.0, 350.0};
  limits.deltaE00 = {true, 1.5, -CieLimits::kNone};
  struct Case {
    Quantity quantity;
    std::optional<double> lower, upper;
  };
  for (const Case& c : {Case{Quantity::kCieA, {}, 3.0}, Case{Quantity::kCieChroma, {}, 5.0},
                        Case{Quantity::kCieHue, -10.0, 20.0}, Case{Quantity::kCieDeltaE00, {}, 1.5},
                        Case{Quantity::kCieB, {}, {}}, Case{Quantity::kA, {}, {}}}) {
    const auto found = LimitsOf(limits, c.quantity);
    EXPECT_EQ(found.lower, c.lower) << QuantityKey(c.quantity).toStdString();
    EXPECT_EQ(found.upper, c.upper) << QuantityKey(c.quantity).toStdString();
  }
}

TEST(RecordValue, ASeriesIsTheNewestRecordsInOrderOfTime) {
  const test::TemporaryFiles files;
  RecordStore store;
  ASSERT_EQ(store.Open(files.Path("records.db"), RecordStore::Mode::kWrite), StoreFault::kNone);
  std::vector<double> values;
  for (unsigned seed = 1; seed <= 6; ++seed) {
    const RecordContext context =
        test::With<RecordContext>(&RecordContext::lot, seed == 2 ? "B" : "A");
    ASSERT_TRUE(store.Append(test::SampleRows(seed, context)));
    if (seed != 2) {
      values.push_back((*test::MeasuredState(seed).Slot(1)).reflectance[500]);
    }
  }
  RecordQuery query;
  query.lot = QStringLiteral("A");
  query.limit = 5;
  const auto all = LoadSeries(store, query, {Quantity::kReflectance, 500});
  ASSERT_TRUE(all);
  EXPECT_EQ(all.value.Values(), values);
  EXPECT_FALSE(all.value.more);
  EXPECT_EQ(all.value.points[0].lot, QStringLiteral("A"));
  query.limit = 2;
  const auto newest = LoadSeries(store, query, {Quantity::kReflectance, 500});
  EXPECT_EQ(newest.value.Values(), std::vector(values.end() - 2, values.end()));
  EXPECT_TRUE(newest.value.more);
  const auto none = LoadSeries(store, query, {Quantity::kThickness});
  EXPECT_TRUE(none.value.points.empty());
  EXPECT_EQ(none.value.without, 2);
}

TEST(RecordValue, HuesAboutZeroDoNotBreak) {
  struct Case {
    std::vector<double> hues;
    std::vector<double> joined;
  };
  for (const Case& c :
       {Case{{359.0, 1.0, 3.0}, {-1.0, 1.0, 3.0}}, Case{{358.0, 357.0, 1.0}, {358.0, 357.0, 361.0}},
        Case{{100.0, 120.0, 200.0}, {100.0, 120.0, 200.0}}, Case{{}, {}}}) {
    ValueSeries series;
    for (const double hue : c.hues) {
      series.points.push_back({});
      series.points.back().value = hue;
    }
    JoinHues(series.points, &ValuePoint::value);
    EXPECT_EQ(series.Values(), c.joined);
  }
}

}  // namespace
}  // namespace vexa

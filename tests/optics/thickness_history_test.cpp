// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness_history.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "support/temporary_files.h"

namespace vexa {
namespace {

TEST(ThicknessHistory, HoldsFiftyPointsOfTheKindOfTheFirst) {
  using enum HistoryAddResult;
  ThicknessHistory history;
  for (int i = 1; i <= 50; ++i) {
    EXPECT_EQ(history.Append({static_cast<double>(i), false}), kAdded);
  }
  EXPECT_FALSE(history.physical);
  EXPECT_EQ(history.Append({51, false}), kFull);
  EXPECT_EQ(history.Append({51, true}), kKindDiffers);
  EXPECT_FALSE(history.Delete(0) || history.Delete(51));
  EXPECT_TRUE(history.Delete(50) && history.Delete(2) && history.Delete(1));
  EXPECT_EQ(history.Append({52, true}), kKindDiffers);
  EXPECT_EQ(history.Append({52, false}), kAdded);
  EXPECT_EQ(history.count, 48);
  EXPECT_EQ(history.Points()[0], 3);
  EXPECT_EQ(history.Points()[46], 49);
  EXPECT_EQ(history.Points()[47], 52);
  history.Clear();
  EXPECT_EQ(history.Append({1, true}), kAdded);
  EXPECT_TRUE(history.physical);
}

TEST(ThicknessHistory, AutoScaleHoldsEveryPoint) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const std::pair<std::vector<double>, std::optional<ThicknessScale>> cases[] = {
      {{}, ThicknessScale{0, 100}},
      {{0}, ThicknessScale{0, 100}},
      {{1500}, ThicknessScale{1440, 1560}},
      {{1630, 1510, 1600}, ThicknessScale{1500, 1650}},
      {{20000}, ThicknessScale{19900, 20000}},
      {{0, 20000}, ThicknessScale{0, 20000}},
      {{-0.1, 500}, {}},
      {{500, 20000.1}, {}},
      {{kNan}, {}},
  };
  for (const auto& [points, scale] : cases) {
    EXPECT_EQ(AutoScale(points), scale) << testing::PrintToString(points);
  }
}

TEST(ThicknessHistory, FileHasItsExactForm) {
  const test::TemporaryFiles files;
  const auto written = [&files](const ThicknessHistory& history) {
    EXPECT_TRUE(WriteThicknessFile(files.Path("履歴 1.thk"), history));
    return files.Read("履歴 1.thk");
  };
  ThicknessHistory history;
  const QByteArray header = "VEXA-KT 440-840 Ver 3.21 Thickness File\r\n";
  EXPECT_EQ(written(history), header + " 0\r\n[nm]\r\n");
  for (const double value : {1500.0, 2013.4567890123456, -12.5, 0.25}) {
    EXPECT_EQ(history.Append({value, false}), HistoryAddResult::kAdded);
  }
  EXPECT_EQ(written(history),
            header + " 4\r\n[nd]\r\n 1500\r\n 2013.45678901235\r\n-12.5\r\n 0.25\r\n");
  EXPECT_FALSE(WriteThicknessFile(QStringLiteral("/nowhere/a.thk"), history));
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>

#include "colour/chromaticity_diagram.h"
#include "colour/diagram_background.h"

namespace vexa {
namespace {

// Expected values: the same loops in a separate Python program, its loop variables rounded to
// single precision at every step.
TEST(DiagramBackground, IsCompleteAndTheSameInAnySteps) {
  DiagramBackground background;
  std::size_t steps = 0;
  while (background.Step(10)) {
    ++steps;
    ASSERT_EQ(background.Points().size(), steps * 10);
    ASSERT_LT(steps, 5000U);
  }
  EXPECT_TRUE(background.IsComplete());
  EXPECT_FALSE(background.Step(10));
  const std::vector<BackgroundPoint>& points = background.Points();
  ASSERT_EQ(points.size(), 39684U);
  std::array<long, 3> sums{};
  for (const BackgroundPoint& point : points) {
    sums[0] += point.r;
    sums[1] += point.g;
    sums[2] += point.b;
  }
  EXPECT_EQ(sums, (std::array<long, 3>{7009408, 7715594, 5518662}));

  struct Case {
    std::size_t index;
    float x;
    float y;
    std::array<int, 3> rgb;
  };
  const Case cases[] = {
      {0, 0.14F, 0.08F, {0, 0, 255}},
      {5000, 0.208F, 0.508076F, {21, 255, 97}},
      {12345, 0.26F, 0.470605F, {85, 255, 102}},
      {20000, 0.322F, 0.48985F, {145, 255, 63}},
      {30000, 0.426F, 0.444906F, {255, 248, 47}},
      {39683, 0.67F, 0.33F, {255, 0, 0}},
  };
  for (const Case& c : cases) {
    const BackgroundPoint& point = points[c.index];
    EXPECT_NEAR(point.x, c.x, 2e-6) << c.index;
    EXPECT_NEAR(point.y, c.y, 2e-6) << c.index;
    EXPECT_EQ((std::array<int, 3>{point.r, point.g, point.b}), c.rgb) << c.index;
  }
}

TEST(DiagramBackground, RedAndGreenRoundOtherwiseThanBlue) {
  EXPECT_EQ(RedGreenComponent(1.0), 1);
  EXPECT_EQ(BlueComponent(1.0), 2);
  EXPECT_EQ(BlueComponent(2.0), 2) << "a half goes to the even side";
  EXPECT_EQ(RedGreenComponent(1.5), 2);
  EXPECT_EQ(BlueComponent(-1e30), 0);
  EXPECT_EQ(RedGreenComponent(1e30), 255);
}

}  // namespace
}  // namespace vexa

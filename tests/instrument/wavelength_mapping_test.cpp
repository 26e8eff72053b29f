// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/wavelength_mapping.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

void SetPixel(LineBuffer& line, int lineIndex, int value) {
  const auto at = static_cast<std::size_t>(2 * lineIndex);
  line.bytes[at] = static_cast<std::uint8_t>(value & 0xff);
  line.bytes[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

// A line whose pixel (in ascending wavelength) has the value f(pixel).
template <typename Function>
LineBuffer Line(Function f) {
  LineBuffer line;
  for (int pixel = 0; pixel < 512; ++pixel) {
    SetPixel(line, 511 - pixel, f(pixel));
  }
  line.complete = true;
  return line;
}

TEST(AverageLines, TruncatesReversesAndIgnoresTheHighBits) {
  LineBuffers lines;
  lines[0] = Line([](int pixel) { return pixel; });
  lines[2] = Line([](int pixel) { return pixel + 0x7001; });  // only the low 12 bits count
  lines[3] = Line([](int) { return 4095; });
  lines[3].complete = false;
  const auto pixels = AverageLines(lines);
  ASSERT_TRUE(pixels);
  EXPECT_EQ((*pixels)[0], 0);  // (0 + 1) / 2
  EXPECT_EQ((*pixels)[511], 511);
  EXPECT_FALSE(AverageLines(LineBuffers{}));
}

TEST(AverageLines, SaturatesAboveAnAverageOf4094) {
  struct Case {
    int first;
    int second;
    bool saturated;
  };
  for (const Case& c : {Case{4095, 4095, true}, Case{4095, 4094, false}, Case{4094, 4094, false}}) {
    LineBuffers lines;
    lines[0] = Line([&c](int pixel) { return pixel == 100 ? c.first : 7; });
    lines[1] = Line([&c](int pixel) { return pixel == 100 ? c.second : 7; });
    const MappedSpectrum mapped = LinesToWaves(lines, kDefaultLinePositions, 440);
    EXPECT_EQ(mapped.status, c.saturated ? 1 : 0);
    EXPECT_EQ(mapped.values.size(), 409U);
  }
}

TEST(LinesToWaves, BinsByHand) {
  // Slopes: 150.469/187, 41.85/53, 25.118/31, 48.02/60 nm a pixel.
  LineBuffers lines;
  lines[0] = Line([](int pixel) { return pixel; });
  const MappedSpectrum mapped = LinesToWaves(lines, kDefaultLinePositions, 440);
  const auto at = [&mapped](int nm) { return mapped.values[static_cast<std::size_t>(nm - 440)]; };
  // Pixel 325 is 696.543 nm. Bin (695.5, 696.4] is point 700: pixel 324 at 695.738 alone.
  EXPECT_EQ(at(700), 324);
  // Bin (696.5, 697.4] is point 701: 325 at 696.543 and 326 at 697.333 (0.7896 nm a pixel).
  EXPECT_EQ(at(701), 325.5);
  // Pixel 378 is 738.393: bin (737.5, 738.4] also holds 377 at 737.603.
  EXPECT_EQ(at(742), 377.5);
  // Pixel 469 is 811.531: bin (811.5, 812.4] holds 469 and 470 at 812.331.
  EXPECT_EQ(at(816), 469.5);
  // Pixel 138 is 546.074: bin (545.5, 546.4] holds it alone (139 is at 546.879).
  EXPECT_EQ(at(550), 138);
  // The last pixel, 511, lies at 763.511 + 102 x 0.80033 = 845.145 nm: bin (844.5, 845.4] would be
  // point 849, beyond the last; point 848 holds 509 at 843.544 and 510 at 844.345.
  EXPECT_EQ(at(848), 509.5);
}

// Positions that put pixels on the very ends of bins: 48.02 nm over 4802 pixels is 0.01 nm a
// pixel, 763.511 nm at pixel -1111 makes pixel 0 lie at 774.621 nm.
TEST(LinesToWaves, LeavesOutThePixelsInTheGapsBetweenBins) {
  const LinePositions positions{-1300, -1200, -1150, -1111, 3691, 0};
  LineBuffers lines;
  lines[0] = Line([](int pixel) { return pixel; });
  const MappedSpectrum mapped = LinesToWaves(lines, positions, 440);
  const auto at = [&mapped](int nm) { return mapped.values[static_cast<std::size_t>(nm - 440)]; };
  // Bin (775.5, 776.4] of point 780: 775.501 nm is pixel 88, 776.391 nm pixel 177; the pixels 178
  // to 187 lie in the gap up to 776.5.
  EXPECT_EQ(at(780), (88 + 177) / 2.0);
  EXPECT_EQ(at(781), (188 + 277) / 2.0);
  // Bin (774.5, 775.4] begins with the first pixel, bin (779.5, 780.4] ends with the last at
  // 779.731.
  EXPECT_EQ(at(779), (0 + 77) / 2.0);
  EXPECT_EQ(at(784), (488 + 511) / 2.0);
  EXPECT_EQ(at(785), 0);
}

TEST(LinesToWaves, SixLinesBelow390) {
  // The pieces start at 435.833 (pixel 60), 546.074 (200), 696.543 (390), 738.393 (440).
  const LinePositions positions{20, 60, 200, 390, 440, 470};
  LineBuffers lines;
  lines[0] = Line([](int pixel) { return pixel; });
  const MappedSpectrum mapped = LinesToWaves(lines, positions, 380);
  EXPECT_EQ(mapped.startNm, 380);
  const auto at = [&mapped](int nm) { return mapped.values[static_cast<std::size_t>(nm - 380)]; };
  // 31.177/40 nm a pixel below 60: bin (435.5, 436.4] (point 440) holds 60 alone; the piece above
  // has 110.241/140: 61 is at 436.620.
  EXPECT_EQ(at(440), 60);
  // 404.656 nm is pixel 20; bin (404.5, 405.4] holds it alone (21 is at 405.435).
  EXPECT_EQ(at(409), 20);
  // 0.837 nm a pixel from 738.393 at 440: bin (763.5, 764.4] holds 470 at 763.511 and 471 at
  // 764.348.
  EXPECT_EQ(at(768), 470.5);
}

TEST(LinesToWaves, PositionsThatCannotBeOfThisDetectorAreKnown) {
  const struct {
    const char* name;
    LinePositions positions;
    int startNm;
    bool fit;
  } cases[] = {
      {"the defaults", kDefaultLinePositions, 440, true},
      {"another detector's", {130, 320, 370, 400, 460, 0}, 440, true},
      {"none", {0, 0, 0, 0, 0, 0}, 440, false},
      {"descending", {469, 409, 378, 325, 138, 0}, 440, false},
      {"two the same", {138, 325, 325, 409, 469, 0}, 440, false},
      {"off the detector", {138, 325, 378, 409, 512, 0}, 440, false},
      {"negative", {-1, 325, 378, 409, 469, 0}, 440, false},
      {"crowded", {1, 2, 3, 4, 5, 0}, 440, false},
      {"far off", {0, 187, 240, 271, 331, 0}, 440, false},
      {"the sixth counts below 390 nm", kDefaultLinePositions, 380, false},
      {"bypass", {0, 1, 2, 3, 4, 511}, 440, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FitTheDetector(c.positions, c.startNm), c.fit) << c.name;
  }
}

TEST(LinesToWaves, BypassAndUnusablePositions) {
  LineBuffers lines;
  lines[0] = Line([](int pixel) { return pixel; });
  const MappedSpectrum raw = LinesToWaves(lines, {0, 325, 378, 409, 469, 511}, 440);
  EXPECT_EQ(raw.startNm, 0);
  ASSERT_EQ(raw.values.size(), 512U);
  EXPECT_EQ(raw.values[511], 511);

  EXPECT_EQ(LinesToWaves(lines, {138, 325, 325, 409, 469, 0}, 440).status, -1);
  EXPECT_EQ(LinesToWaves(LineBuffers{}, kDefaultLinePositions, 440).status, -1);
  // Positions outside the detector or in disorder give a spectrum, not a fault.
  EXPECT_EQ(LinesToWaves(lines, {-900, 3000, 20, -7, 32767, 0}, 440).values.size(), 409U);
}

}  // namespace
}  // namespace vexa

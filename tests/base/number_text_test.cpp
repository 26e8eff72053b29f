// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/date_text.h"

namespace vexa {
namespace {

struct FormatCase {
  double value;
  const char16_t* pattern;
  const char* text;
};

TEST(NumberText, FollowsThePattern) {
  const FormatCase cases[] = {
      {0.0, u"0.000000000000000", "0.000000000000000"},
      {12.3456789012346, u"0.000000000000000", "12.345678901234600"},
      {440.0, u"##0", "440"},
      {0.4, u"##0", "0"},
      {4.0, u"##0.0##", "4.0"},
      {4.1254, u"##0.0##", "4.125"},
      {4.1255, u"##0.0##", "4.126"},
      {0.5, u" ##0.0###", " 0.5"},
      // Halves go away from zero on the decimal digits, though 2.675 and 1.005 lie below a half.
      {2.675, u"##0.00", "2.68"},
      {-1.005, u"0.00", "-1.01"},
      {0.5, u"###0", "1"},
      {999.9996, u"##0.000", "1000.000"},
      {0.00049, u"0.000", "0.000"},
      {-0.00049, u"0.000", "0.000"},
      {-7.6123911E-05, u"0.00000000E+00", "-7.61239110E-05"},
      {129.617662, u"0.00000000E+00", "1.29617662E+02"},
      {9.999999999, u"0.00000000E+00", "1.00000000E+01"},
      {0.0, u"0.00000000E+00", "0.00000000E+00"},
      {1e-120, u"0.0E+00", "1.0E-120"},
      {std::nan(""), u"0.000", "-"},
      {std::numeric_limits<double>::infinity(), u"0.000", "-"},
  };
  for (const FormatCase& c : cases) {
    EXPECT_EQ(FormatNumber(c.value, c.pattern).toStdString(), c.text) << c.value;
  }
  EXPECT_EQ(FormatNumber(1e300, u"0").size(), 301);
}

TEST(NumberText, SignedTextKeepsFifteenDigitsAndTheSignPlace) {
  const std::pair<double, const char*> cases[] = {
      {440, " 440"},
      {0, " 0"},
      {-0.0091988101, "-0.0091988101"},
      {0.118583612, " 0.118583612"},
      {-7.6123911E-05, "-7.6123911E-05"},
      {0.0001, " 0.0001"},
      {1e15, " 1E+15"},
      {123456789012345.0, " 123456789012345"},
      {0.1 + 0.2, " 0.3"},
  };
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(SignedText(value).toStdString(), text);
  }
}

TEST(DateText, ReadsADayWithOrWithoutATime) {
  const QDate day(2026, 3, 9);
  const std::pair<const char*, std::optional<QDateTime>> cases[] = {
      {"2026/3/9", QDateTime(day, {0, 0})},
      {" 2026-03-09 ", QDateTime(day, {0, 0})},
      {"2026/3/9 9:05", QDateTime(day, {9, 5})},
      {"2026-3-9  09:05", QDateTime(day, {9, 5})},
      {"2026-03-09T09:05:07", QDateTime(day, {9, 5, 7})},
      {"2026/3/9 9:05:07", QDateTime(day, {9, 5, 7})},
      {"0:00:00", QDateTime()},
      {"2026/2/30", std::nullopt},
      {"2026/3/9 9", std::nullopt},
      {"2026/3/9 24:00", std::nullopt},
      {"26/3/9", std::nullopt},
      {"9:05", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [text, time] : cases) {
    EXPECT_EQ(ParseDateTime(QLatin1String(text)), time) << text;
  }
}

TEST(CodePage, KeepsJapaneseAndReplacesWhatItCannotHold) {
  const QString text = QStringLiteral("ﾌｧｲﾙ 表示～①髙");
  EXPECT_TRUE(IsEncodable(text));
  EXPECT_EQ(Encode(QStringLiteral("表ﾌ")), QByteArray("\x95\x5c\xcc"));
  CodePageDecoder decoder;
  EXPECT_EQ(decoder.Decode(Encode(text)), text);
  EXPECT_FALSE(IsEncodable(QStringLiteral("a😀")));
  EXPECT_EQ(Encode(QStringLiteral("a😀é表")), QByteArray("a??\x95\x5c"));
  EXPECT_EQ(decoder.Decode(QByteArray("a\xff\x62", 3)), QStringLiteral("a\uFFFDb"));
}

}  // namespace
}  // namespace vexa

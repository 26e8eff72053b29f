// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "instrument/h8_frame.h"
#include "instrument/h8_reply.h"
#include "instrument/receive_ring.h"
#include "instrument/serial_port_path.h"

namespace vexa {
namespace {

std::span<const std::uint8_t> Bytes(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

TEST(H8Frame, IsFourBytesOrNothing) {
  const std::pair<const char*, const char*> cases[] = {
      {"69", "69000000"},
      {"A509", "A5090000"},
      {"96009100", "96009100"},
      {"C30101", "C3010100"},
      {"0102030405", "01020304"},
      {"123", ""},
      {"C301001", ""},
      {"6", ""},
      {"", ""},
  };
  for (const auto& [text, frame] : cases) {
    const auto built = BuildFrame(QString::fromLatin1(text));
    EXPECT_EQ(built.value_or(QByteArray()).toHex().toUpper(), frame) << text;
    EXPECT_EQ(built.has_value(), *frame != '\0') << text;
  }
}

TEST(H8Frame, TimerCodeTakesTheFirstPrescalerThatFits) {
  // count = time x divisor / 2050 - 1, truncated; prescaler 0 divides by 10000, and so on.
  const std::pair<int, const char*> cases[] = {
      {30, "009100"},     // 300000 / 2050 = 146
      {3000, "392900"},   // 14634 - 1
      {13435, "FFFF00"},  // 65536 - 1: the last time of prescaler 0
      {13436, "800101"},  // 67180000 / 2050 = 32770 - 1 = 0x8001, prescaler 1
      {20000, "BE8B01"},  // 48780 - 1
      {1, "000300"},      // 4 - 1
      {0, "-1"},         {-5, "-1"},
  };
  for (const auto& [timeMs, code] : cases) {
    EXPECT_EQ(TimerCode(static_cast<std::int16_t>(timeMs)).toStdString(), code) << timeMs;
  }
}

TEST(H8Reply, TextFollowsItsGroups) {
  const std::pair<QByteArray, const char*> cases[] = {
      {"CHAREND", "END"},
      {"", ""},
      {"CHAR", ""},
      {QByteArray("\x01\xab", 2), "01AB"},
      {QByteArray("CHARA") + QByteArray("DATA\x07", 5) + QByteArray("CHARB"), "A07B"},
      {"XCHAREND", "58END"},
      {"CHARDAT", "DAT"},
  };
  for (const auto& [body, text] : cases) {
    EXPECT_EQ(ReplyText(Bytes(body)).toStdString(), text) << body.toHex().constData();
  }
}

TEST(H8Reply, LinesAreCompleteOnlyWhenExact) {
  struct Case {
    int dataBytes;
    bool exact;
    int complete;
  };
  const Case cases[] = {{0, false, 0},         {1023, false, 0},      {1024, true, 1},
                        {1025, false, 1},      {15 * 1024, true, 15}, {16 * 1024, true, 16},
                        {17 * 1024, false, 16}};
  for (const Case& c : cases) {
    LineBuffers lines;
    const QByteArray body = QByteArray(4, 'h') + QByteArray(c.dataBytes, '\x05');
    EXPECT_EQ(FillLines(Bytes(body), lines), c.exact) << c.dataBytes;
    int complete = 0;
    for (const LineBuffer& line : lines) {
      complete += line.complete ? 1 : 0;
    }
    EXPECT_EQ(complete, c.complete) << c.dataBytes;
  }
  LineBuffers lines;
  EXPECT_FALSE(FillLines(Bytes("hh"), lines));
}

TEST(ReceiveRing, RecognisesATerminatorOnceAllOfItIsIn) {
  ReceiveRing ring;
  ring.Append("CHARE");
  EXPECT_EQ(ring.Evaluate(LinkStatus::kNone), LinkStatus::kBytesArriving);
  ring.Append("NDREQEN");
  EXPECT_EQ(ring.Evaluate(LinkStatus::kNone), LinkStatus::kNone);
  ring.Append("D");
  EXPECT_EQ(ring.Evaluate(LinkStatus::kNone), LinkStatus::kRequestEnd);
  EXPECT_EQ(ring.Body().size(), 7U);
  ring.Append("REQERR");
  EXPECT_EQ(ring.Evaluate(LinkStatus::kNone), LinkStatus::kRequestError);
}

TEST(ReceiveRing, StartsAgainAtItsEnd) {
  ReceiveRing ring;
  ring.Append(QByteArray(18000, 'x'));
  EXPECT_EQ(ring.StoredBytes(), 18000U);
  ring.Append("xy");
  EXPECT_EQ(ring.StoredBytes(), 1U);
  ring.Append("DATEND");
  EXPECT_EQ(ring.Evaluate(LinkStatus::kNone), LinkStatus::kDataEnd);
}

TEST(SerialPortPath, PrefersTheEntryOfTheProgramDirectory) {
  const QTemporaryDir directory;
  EXPECT_EQ(SerialPortPath(directory.path(), 5), QStringLiteral("/dev/ttyS4"));
  ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere"), directory.filePath(QStringLiteral("com5"))));
  EXPECT_EQ(SerialPortPath(directory.path(), 5), directory.filePath(QStringLiteral("com5")));
  EXPECT_EQ(SerialPortPath(directory.path(), 1), QStringLiteral("/dev/ttyS0"));
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_file.h"

#include <gtest/gtest.h>

#include "support/temporary_files.h"

namespace vexa {
namespace {

constexpr const char* kName = "レンズ 1.std";

class StandardFile : public testing::Test {
 protected:
  // Whether it was read; what it held, or the message about it.
  bool Read() {
    const auto read = ReadStandardFile(path_);
    contents_ = read ? *read : StandardContents();
    message_ = read ? std::nullopt : std::optional(StandardMessage(path_, read.Fault()).id);
    return static_cast<bool>(read);
  }

  test::TemporaryFiles files_;
  QString path_ = files_.Path(kName);
  StandardContents contents_;
  std::optional<Message> message_;
};

const QByteArray kGolden =
    "VEXA-KT 440-840 Ver 3.21 Standard File\r\n"
    "#TRUE#\r\n"
    "#TRUE#\r\n 450 \r\n 1.5 \r\n 0 \r\n"
    "#TRUE#\r\n 700 \r\n 2.25 \r\n 0.1 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#FALSE#\r\n 440 \r\n 100 \r\n 0 \r\n"
    "#TRUE#\r\n-7 \r\n-0.5 \r\n 7.6E-05 \r\n"
    "#TRUE#\r\n 0.75 \r\n 0.25 \r\n"
    "#FALSE#\r\n 0.8 \r\n 0.2 \r\n"
    "#TRUE#\r\n0\r\n 560 \r\n 540.5 \r\n"
    "#TRUE#\r\n 5 \r\n 1 \r\n"
    "#TRUE#\r\n 10 \r\n 350 \r\n"
    "#TRUE#\r\n 3.5 \r\n"
    "#FALSE#\r\n 275 \r\n";

TEST_F(StandardFile, IsWrittenAndReadByteForByte) {
  StandardSet standard;
  standard.useReflectance = true;
  standard.wavelengths = {450, 700, 440, 440, 440, 440, 440, 440, 440, -7};
  standard.conditions[0] = {true, 1.5, 0.0};
  standard.conditions[1] = {true, 2.25, 0.1};
  standard.conditions[9] = {true, -0.5, 7.6e-5};
  standard.averageReflectance = {true, 0.75, 0.25};
  standard.luminousReflectance = {false, 0.8, 0.2};
  standard.wavelengthValue = {{true, 560.0, 540.5}, 0};
  standard.chroma = {true, 5.0, 1.0};
  standard.hueAngle = {true, 10.0, 350.0};
  const ReferenceMarker chroma{true, 3.5};
  const ReferenceMarker hue{false, 275.0};
  ASSERT_TRUE(WriteStandardFile(path_, {standard, chroma, hue}));
  EXPECT_EQ(files_.Read(kName), kGolden);
  EXPECT_EQ(kGolden.count('\n'), 62);

  ASSERT_TRUE(Read());
  EXPECT_EQ(contents_, (StandardContents{standard, chroma, hue}));
  EXPECT_FALSE(WriteStandardFile(QStringLiteral("/nowhere/file.std"), {}));
}

TEST_F(StandardFile, OldVersionsAndOtherKindsAreRefusedWithAMessage) {
  const std::pair<const char*, bool> cases[] = {
      {"VEXA-KT 440-840 Ver 3.00 Standard File", true},
      {"VEXA-KT 440-840 Ver 3.00 Standard File,,", true},
      {"VEXA for Windows Ver 3.21 Standard File", true},
      {"VEXA-KT 440-840 Ver 2.99 Standard File", false},
      {"VEXA-KT 440-840 Ver 1.10 Standard File", false},
      {"VEXA-KT 440-840 Ver 3.21 Data File", false},
      {"", false},
  };
  for (const auto& [header, read] : cases) {
    files_.Write(kName,
                 QByteArray(kGolden).replace("VEXA-KT 440-840 Ver 3.21 Standard File", header));
    EXPECT_EQ(Read(), read) << header;
    EXPECT_EQ(message_, read ? std::nullopt : std::optional(Message::kStandardVersionRefused))
        << header;
  }
}

TEST_F(StandardFile, AnyCutIsAFault) {
  const QList<QByteArray> lines = kGolden.chopped(2).split('\n');
  for (qsizetype count = 1; count < lines.size(); ++count) {
    files_.Write(kName, lines.first(count).join('\n'));
    EXPECT_FALSE(Read()) << count;
    EXPECT_EQ(message_, Message::kStandardReadError) << count;
  }
}

TEST_F(StandardFile, AValueOfAnotherKindEndsTheReading) {
  struct Case {
    const char* defect;
    const char* from;
    const char* to;
    int line;
  };
  const Case cases[] = {
      {"text for a flag", "#TRUE#\r\n 450", "yes\r\n 450", 3},
      {"text for a wavelength", " 450 ", "blue", 4},
      {"wavelength beyond 16 bits", " 450 ", "65986", 4},
      {"text for a limit", " 2.25 ", "2.25 %", 9},
      {"limit beyond a double", " 2.25 ", "1E999", 9},
      {"an empty line", " 2.25 ", "", 9},
      {"text for the selector", "\r\n0\r\n", "\r\npeak\r\n", 50},
      {"a flag for the last number", " 275 ", "#TRUE#", 62},
  };
  for (const Case& c : cases) {
    files_.Write(kName, QByteArray(kGolden).replace(c.from, c.to));
    const auto read = ReadStandardFile(path_);
    ASSERT_FALSE(read) << c.defect;
    EXPECT_EQ(read.Fault().line, c.line) << c.defect;
  }
  files_.Write(kName, "\xff\xfe\x00\x81");
  EXPECT_FALSE(Read());
  QFile::remove(path_);
  EXPECT_FALSE(Read());
}

}  // namespace
}  // namespace vexa

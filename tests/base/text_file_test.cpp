// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/text_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>

#include "base/header_version.h"
#include "base/number_text.h"
#include "base/read_file.h"
#include "support/full_disk.h"
#include "support/temporary_files.h"

namespace {
int brokenFlush = 0;  // the error number of every fsync; 0 for none
}  // namespace

// Takes the place of the system's.
extern "C" int fsync(int /*descriptor*/) {
  errno = brokenFlush;
  return brokenFlush == 0 ? 0 : -1;
}

namespace vexa {
namespace {

TEST(Numbers, LeadingAndWhole) {
  struct Case {
    const char* text;
    std::optional<double> leading;
    std::optional<double> whole;
  };
  const Case cases[] = {
      {" 440 ", 440.0, 440.0}, {"-0.5", -0.5, -0.5},
      {"+7", 7.0, 7.0},        {"2.5e-05", 2.5e-05, 2.5e-05},
      {"1E3", 1000.0, 1000.0}, {".5", 0.5, 0.5},
      {"3.21 Data", 3.21, {}}, {"1,5", 1.0, {}},
      {"12E", 12.0, {}},       {"", 0.0, {}},
      {"abc", 0.0, {}},        {"nan", 0.0, {}},
      {"inf", 0.0, {}},        {"+-1", 0.0, {}},
      {"-", 0.0, {}},          {"1E999", {}, {}},
      {"0x10", 0.0, {}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(LeadingNumber(QString::fromLatin1(c.text)), c.leading) << c.text;
    EXPECT_EQ(ParseNumber(QString::fromLatin1(c.text)), c.whole) << c.text;
  }
}

TEST(HeaderVersion, NeedsModelRangeAndKind) {
  struct Case {
    const char* header;
    const char* kind;
    double version;
  };
  const Case cases[] = {
      {"VEXA-KT 440-840 Ver 3.21 Data File", "DAT", 3.21},
      {"vexa-kt 440-840 ver3.21 adddata file", "ADD", 3.21},
      {"VEXA for Windows ver 1.10 Data File", "DAT", 1.1},
      {"VEXA-KT 380-780 Ver 2.00 Data File", "DAT", 0.0},
      {"KT 440-840 Ver 3.21 Data File", "DAT", 0.0},
      {"VEXA-KT 440-840 Ver 3.21 Data File", "STA", 0.0},
      {"VEXA-KT 440-840 Data File", "DAT", 0.0},
      {"VEXA-KT 440-840 Ver x Data File", "DAT", 0.0},
      {"", "DAT", 0.0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ReadHeaderVersion(QString::fromLatin1(c.header), QString::fromLatin1(c.kind)),
              c.version)
        << c.header;
  }
}

TEST(TextReader, FieldsFollowOneAnotherOverLines) {
  TextReader reader(" a , \"b,c\" ,,4.5\r\n-3 \n#TRUE#\r\nfalse,x\n 12.5 rest");
  EXPECT_EQ(reader.Field(), QStringLiteral("a"));
  EXPECT_EQ(reader.Field(), QStringLiteral("b,c"));
  EXPECT_EQ(reader.Field(), QString());
  EXPECT_EQ(reader.RealField(), 4.5);
  EXPECT_EQ(reader.IntegerField(), -3);
  EXPECT_TRUE(reader.FlagLine());
  EXPECT_FALSE(reader.BooleanField());
  EXPECT_EQ(reader.Line(), QStringLiteral("x"));
  EXPECT_EQ(reader.IntegerLine(), 12);  // half to even
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_THROW(reader.Line(), ReadFault);
}

TEST(TextReader, RowsStandOnOneLine) {
  TextReader reader("1,2,3,left over\r\n1,2\r\n\"open,4\n\xff\x81,z");
  EXPECT_EQ(reader.Row(3),
            (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
  EXPECT_THROW(reader.Row(3), ReadFault);
  EXPECT_EQ(reader.Row(1), QStringList{QStringLiteral("open,4")});
  EXPECT_EQ(reader.Row(2).back(), QStringLiteral("z"));
}

TEST(TextReader, ValuesThatAreNoneAreFaults) {
  EXPECT_EQ(TextReader("-32768").IntegerField(), -32768);
  EXPECT_EQ(TextReader("32767").IntegerField(), 32767);
  const char* const integers[] = {"32768", "-32769", "x", "1.5x"};
  for (const char* text : integers) {
    EXPECT_THROW(TextReader(text).IntegerField(), ReadFault) << text;
  }
  EXPECT_THROW(TextReader("#MAYBE#").FlagLine(), ReadFault);
  EXPECT_THROW(TextReader("1E999").RealLine(), ReadFault);
}

TEST(ReadRegularFile, ReadsNothingElse) {
  const test::TemporaryFiles files;
  const QString pipe = files.Path("pipe.env");
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  const std::pair<QString, FileFaultKind> cases[] = {
      {QStringLiteral("/nowhere"), FileFaultKind::kMissing},
      {QStringLiteral("/"), FileFaultKind::kNotRegular},
      {QStringLiteral("/dev/zero"), FileFaultKind::kNotRegular},
      {pipe, FileFaultKind::kNotRegular},
      {files.Write("large", QByteArray(101, 'x')), FileFaultKind::kTooLarge},
  };
  for (const auto& [path, kind] : cases) {
    const auto bytes = ReadRegularFile(path, 100);
    ASSERT_FALSE(bytes) << qPrintable(path);
    EXPECT_EQ(bytes.Fault().kind, kind) << qPrintable(path);
  }
  EXPECT_EQ(ReadRegularFile(files.Path("large"), 101)->size(), 101);
}

TEST(FileText, ReplacesItsFileWholeOrNotAtAll) {
  const test::TemporaryFiles files;
  const char* const name = "設定 1.env";
  FileText old;
  old.Line(QStringLiteral("ﾌｧｲﾙ")).Number(440).Number(-7.6123911E-05).Flag(true).Flag(false);
  ASSERT_TRUE(old.WriteTo(files.Path(name)));
  const QByteArray before = "\xcc\xa7\xb2\xd9\r\n 440 \r\n-7.6123911E-05 \r\n#TRUE#\r\n#FALSE#\r\n";
  EXPECT_EQ(files.Read(name), before);

  FileText longer;
  for (int i = 0; i < 2000; ++i) {
    longer.Number(i);
  }
  for (const rlim_t limit : {0UL, 1UL, 100UL, 4096UL, 5000UL}) {
    {
      const test::FullDisk disk(limit);
      EXPECT_FALSE(longer.WriteTo(files.Path(name))) << limit;
    }
    EXPECT_EQ(files.Read(name), before) << limit;
    EXPECT_EQ(QDir(files.Directory()).entryList(QDir::Files).size(), 1) << "nothing is left behind";
  }
  const WriteResult nowhere = longer.WriteTo(QStringLiteral("/nowhere/file"));
  EXPECT_FALSE(nowhere);
  EXPECT_EQ(nowhere.reason, QStringLiteral("ﾌｫﾙﾀﾞがありません。"));

  brokenFlush = EIO;
  EXPECT_FALSE(longer.WriteTo(files.Path(name)));
  brokenFlush = ENOSPC;
  EXPECT_EQ(longer.WriteTo(files.Path(name)).reason, QStringLiteral("ﾃﾞｨｽｸに空きがありません。"));
  brokenFlush = 0;
  EXPECT_EQ(files.Read(name), before);
}

}  // namespace
}  // namespace vexa

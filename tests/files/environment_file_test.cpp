// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/environment_file.h"

#include <gtest/gtest.h>

#include "files/startup_file.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

// Every value differs from its default; texts in Shift-JIS (表 is 95 5c).
const char* const kGolden =
    "VEXA-KT 440-840 Ver 3.21 Environment File\r\n 3 \r\n#TRUE#\r\n#FALSE#\r\n 450 \r\n 800.5 \r\n "
    "50 \r\n"
    "#FALSE#\r\n 12.5 \r\n 0.5 \r\n#FALSE#\r\n 0.25 \r\n 10 \r\n#FALSE#\r\n 4 \r\n#FALSE#\r\n 1 "
    "\r\n"
    "#FALSE#\r\n#FALSE#\r\nC:\\\x95\x5c.std\r\n 0 \r\n 4.25 \r\n"
    " 2.5 \r\n-0.01 \r\n 0.02 \r\n-7.6123911E-05 \r\n 2.8558727E-05 \r\n-1.2566486E-06 \r\n"
    " 1.1 \r\n 0.2 \r\n 1.3 \r\n 0.01 \r\n-0.02 \r\n 100 \r\na.ref\r\n 30 \r\n#TRUE#\r\n 2 \r\n 1 "
    "\r\n"
    " 4 \r\n 1.5 \r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n 7 \r\n 8 \r\n 9 \r\n 10 \r\n 11 "
    "\r\n"
    " 12 \r\nb.ind\r\nc d.csv\r\n 500 \r\n 600 \r\n";

class EnvironmentFile : public testing::Test {
 protected:
  // The version that was read and put in force; 0 when there was a fault.
  double Load(const QString& path) {
    const auto content = ReadEnvFile(path);
    if (content) {
      ApplyEnvironment(*content, state);
    }
    return content ? content->version : 0.0;
  }

  const test::TemporaryFiles files;
  VEXATYPE state;
};

TEST_F(EnvironmentFile, EveryLineHasItsPlaceAndGoesRoundUnchanged) {
  EXPECT_EQ(Load(files.Write("a.env", kGolden)), 3.21);
  EXPECT_EQ(state.display.view, 3);
  EXPECT_EQ(state.display.longestNm, 800.5);
  EXPECT_EQ(state.display.maximumPercent, 12.5);
  EXPECT_EQ(state.display.textStepNm, 10);
  EXPECT_EQ(state.display.labScale, 1);
  EXPECT_EQ(state.colour.illuminant, 4);
  EXPECT_EQ(state.standardFileName, QStringLiteral("C:\\表.std"));
  EXPECT_EQ(state.referenceSetting.schott[3], -7.6123911E-05);
  EXPECT_EQ(state.referenceSetting.sellmeier[5], 100.0);
  EXPECT_EQ(state.instrument.samplingTimeMs, 30);
  EXPECT_EQ(state.thickness.type, 2);
  EXPECT_EQ(state.thickness.coat.kind, 4);
  EXPECT_EQ(state.thickness.coat.sellmeier[0], 7.0);
  EXPECT_EQ(state.thickness.coat.dataFileName, QStringLiteral("c d.csv"));
  EXPECT_EQ(state.colour.avgTo, 600);
  EXPECT_TRUE(WriteEnvFile(files.Path("b.env"), state));
  EXPECT_EQ(files.Read("b.env").toStdString(), kGolden);
}

TEST_F(EnvironmentFile, FullScaleSetsTheWavelengths) {
  QByteArray full = kGolden;
  full.replace("#TRUE#\r\n#FALSE#\r\n 450", "#TRUE#\r\n#TRUE#\r\n 450");
  EXPECT_EQ(Load(files.Write("a.env", full)), 3.21);
  EXPECT_EQ(state.display.shortestNm, 440.0);
  EXPECT_EQ(state.display.longestNm, 840.0);
}

// The older layout, a line for each of its fields in their order.
TEST_F(EnvironmentFile, OlderLayoutKeepsWhatItLacks) {
  QByteArray old =
      "VEXA for Windows ver 1.10 Environment "
      "File\r\n#FALSE#\r\n1\r\n8\r\n2\r\n#FALSE#\r\n#FALSE#\r\n"
      "460\r\n700\r\n20\r\n5\r\nskip\r\nskip\r\n#TRUE#\r\n#FALSE#\r\n2\r\n#FALSE#\r\n0\r\n"
      "skip\r\nskip\r\nskip\r\n500\r\n1\r\n3."
      "5\r\n21\r\n22\r\n23\r\n24\r\n25\r\n26\r\nskip\r\nskip\r\n"
      "r.ref\r\n#TRUE#\r\n1\r\n1\r\n3\r\n1."
      "25\r\n41\r\n42\r\n43\r\n44\r\n45\r\n46\r\nskip\r\nskip\r\n"
      "i.ind\r\ns.csv\r\n";
  state.standardFileName = QStringLiteral("kept.std");
  state.display.view = 6;
  EXPECT_EQ(Load(files.Write("old.env", old)), 1.1);
  EXPECT_EQ(state.display.minimumPercent, 1.0);
  EXPECT_EQ(state.display.maximumPercent, 8.0);
  EXPECT_EQ(state.display.tickPercent, 2.0);
  EXPECT_EQ(state.display.wavelengthTickNm, 20.0);
  EXPECT_TRUE(state.display.showReferenceData);
  EXPECT_FALSE(state.display.xyMode);
  EXPECT_EQ(state.display.labScale, 0);
  EXPECT_EQ(state.instrument.samplingTimeMs, 500);
  EXPECT_EQ(state.referenceSetting.schott[5], 26.0);
  EXPECT_EQ(state.referenceSetting.indexFileName, QStringLiteral("r.ref"));
  EXPECT_EQ(state.thickness.coat.kind, 3);
  EXPECT_EQ(state.thickness.coat.schott[0], 41.0);
  EXPECT_EQ(state.thickness.coat.indexFileName, QStringLiteral("i.ind"));
  EXPECT_EQ(state.thickness.coat.dataFileName, QStringLiteral("s.csv"));
  EXPECT_EQ(state.standardFileName, QStringLiteral("kept.std"));
  EXPECT_EQ(state.display.view, 6);
  state = {};
  EXPECT_EQ(Load(files.Write("old.env", old.replace("1.10", "1.00"))), 1.0);
  EXPECT_EQ(state.instrument.samplingTimeMs, 500);
}

TEST_F(EnvironmentFile, ADefectHasItsMessageAndPlace) {
  const QByteArray golden = kGolden;
  struct Case {
    const char* name;
    QByteArray bytes;
    std::optional<Message> fault;
    int line = 0;
    const char* version = nullptr;  ///< in the message
  };
  using enum Message;
  const Case cases[] = {
      {"version 3.00", QByteArray(golden).replace("3.21", "3.00"), {}},
      {"version 2.99", QByteArray(golden).replace("3.21", "2.99"), {}},
      {"version 2.98 is the older layout", QByteArray(golden).replace("3.21", "2.98"),
       kEnvironmentReadError, 2},
      {"version 1.00 is too", QByteArray(golden).replace("3.21", "1.00"), kEnvironmentReadError, 2},
      {"version 0.99", QByteArray(golden).replace("3.21", "0.99"), kEnvironmentVersionError, 1,
       "0.99"},
      {"another model", QByteArray(golden).replace("VEXA", "OTHER"), kEnvironmentVersionError, 1,
       "0"},
      {"another kind", QByteArray(golden).replace("Environment", "Data"), kEnvironmentVersionError,
       1, "0"},
      {"empty", "", kEnvironmentVersionError, 1, "0"},
      {"binary", QByteArray("\0\xff\x81\r\n\n,\"", 8), kEnvironmentVersionError, 1, "0"},
      {"cut short", golden.left(golden.indexOf("\r\na.ref")), kEnvironmentReadError, 35},
      {"no flag", QByteArray(golden).replace("#TRUE#\r\n#FALSE#\r\n 450", "TRUE?\r\n"),
       kEnvironmentReadError, 3},
      {"number beyond 16 bits", QByteArray(golden).replace(" 3 \r\n#", " 40000 \r\n#"),
       kEnvironmentReadError, 2},
  };
  for (const Case& c : cases) {
    const QString path = files.Write("x.env", c.bytes);
    const auto content = ReadEnvFile(path);
    ASSERT_EQ(static_cast<bool>(content), !c.fault) << c.name;
    if (!c.fault) {
      continue;
    }
    const MessageCall message = EnvironmentMessage(path, content.Fault());
    EXPECT_EQ(message.id, *c.fault) << c.name;
    EXPECT_EQ(content.Fault().line, c.line) << c.name;
    if (c.version != nullptr) {
      EXPECT_EQ(message.arguments, (QStringList{path, QString::fromUtf8(c.version)})) << c.name;
    }
  }
  EXPECT_EQ(EnvironmentMessage({}, ReadEnvFile(files.Path("none.env")).Fault()).id,
            kEnvironmentMissing);
}

TEST_F(EnvironmentFile, AnUnreadableOneIsKeptWhenItIsOverwritten) {
  const QString path = files.Write("a.env", "precious but broken");
  EXPECT_TRUE(WriteEnvFile(path, state));
  EXPECT_EQ(files.Read("a.env.bad"), "precious but broken");
  EXPECT_TRUE(WriteEnvFile(path, state));
  EXPECT_FALSE(files.Has("a.env.bad2")) << "a readable one needs no copy";
  files.Write("a.env", "broken again");
  EXPECT_TRUE(WriteEnvFile(path, state));
  EXPECT_EQ(files.Read("a.env.bad2"), "broken again");
  EXPECT_EQ(files.Read("a.env.bad"), "precious but broken");
}

TEST_F(EnvironmentFile, StartupFileHasNineLines) {
  const QByteArray golden =
      "VEXA-KT 440-840 Ver 3.21 Environment File\r\nC:\\\x95\x5c.env\r\n 0 \r\n 130 \r\n 320 \r\n "
      "370 \r\n 400 \r\n"
      " 460 \r\n 380 \r\n";
  state.programDirectory = files.Directory();
  const auto startup = ReadStartupFile(files.Write("vexa.int", golden));
  ASSERT_TRUE(startup);
  ApplyStartup(*startup, state);
  EXPECT_EQ(state.envFileName, QStringLiteral("C:\\表.env"));
  EXPECT_EQ(state.instrument.controllerPort, 0);
  EXPECT_EQ(state.instrument.linePositions, (LinePositions{130, 320, 370, 400, 460, 0}));
  EXPECT_TRUE(ReadStartupFile(files.Write("vexa.int", QByteArray(golden).replace("3.21", "1.00"))));
  QFile::remove(files.Path("vexa.int"));
  EXPECT_TRUE(WriteStartupFile(state));
  EXPECT_EQ(files.Read("vexa.int"), golden);

  for (const QByteArray& bytes :
       {QByteArray(), golden.left(70), QByteArray(golden).replace("VEXA", "V"),
        QByteArray(golden).replace("3.21", "0.99")}) {
    EXPECT_FALSE(ReadStartupFile(files.Write("vexa.int", bytes)));
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/configuration.h"

#include <gtest/gtest.h>

#include "files/environment_file.h"
#include "files/startup_file.h"
#include "standards/standard_file.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

class Configuration : public testing::Test {
 protected:
  Configuration() { state.programDirectory = written.programDirectory = files.Directory(); }

  // Loads the configuration; which messages it has to tell.
  std::vector<Message> Load(UnnamedEnvironment unnamed = UnnamedEnvironment::kIgnored) {
    std::vector<Message> told;
    for (const MessageCall& notice : LoadConfiguration(state, unnamed)) {
      told.push_back(notice.id);
    }
    return told;
  }

  test::TemporaryFiles files;
  VEXATYPE written;
  VEXATYPE state;
};

TEST_F(Configuration, AMissingEnvironmentIsToldAndPortAndPositionsStay) {
  state.instrument.averagingCount = 8;
  EXPECT_EQ(Load(), std::vector<Message>()) << "the first start";
  EXPECT_EQ(state.instrument.controllerPort, 5);
  EXPECT_EQ(state.instrument.averagingCount, 1);
  EXPECT_EQ(state.instrument.calibrationShiftNm, 4);

  written.envFileName = QStringLiteral("/gone/mine.env");
  written.instrument.controllerPort = 3;
  written.instrument.linePositions[2] = 379;
  ASSERT_TRUE(WriteStartupFile(written));
  EXPECT_EQ(Load(), std::vector{Message::kEnvironmentMissing});
  EXPECT_EQ(state.instrument.controllerPort, 3);
  EXPECT_EQ(state.instrument.linePositions[2], 379);
  EXPECT_EQ(state.envFileName, QStringLiteral("vexa.env"));

  written.instrument.linePositions[2] = 0;
  ASSERT_TRUE(WriteStartupFile(written));
  EXPECT_EQ(Load(), (std::vector{Message::kLinePositionsUnfit, Message::kEnvironmentMissing}));
  EXPECT_EQ(state.instrument.linePositions[2], 0) << "told, and kept";
  written.instrument.linePositions[2] = 379;
  ASSERT_TRUE(WriteStartupFile(written));

  written.display.view = 2;
  ASSERT_TRUE(WriteEnvFile(files.Path("mine.env"), written));
  EXPECT_EQ(Load(), std::vector<Message>()) << "found by its name";
  EXPECT_EQ(state.display.view, 2);
  EXPECT_EQ(state.envFileName, files.Path("mine.env"));
}

TEST_F(Configuration, AnEnvironmentOfTheProgramDirectoryIsNamedBare) {
  written.programDirectory = files.Path("測定〜9");  // no name for the code page
  ASSERT_TRUE(QDir().mkpath(written.programDirectory));
  const std::pair<QString, QString> names[] = {
      {files.Path("測定〜9/my.env"), QStringLiteral("my.env")},
      {QStringLiteral("vexa.env"), QStringLiteral("vexa.env")},
      {QStringLiteral("/elsewhere/vexa.env"), QStringLiteral("/elsewhere/vexa.env")},
  };
  for (const auto& [name, inFile] : names) {
    written.envFileName = name;
    ASSERT_TRUE(WriteStartupFile(written));
    EXPECT_EQ(ReadStartupFile(StartupPath(written.programDirectory))->envFileName, inFile);
  }
}

TEST_F(Configuration, AnUnnamedEnvironmentCountsWhereItIsAskedFor) {
  written.display.view = 6;
  written.colour.illuminant = 7;
  ASSERT_TRUE(WriteEnvFile(files.Path("vexa.env"), written));
  EXPECT_EQ(Load(), std::vector<Message>());
  EXPECT_EQ(state.display.view, 0);
  EXPECT_EQ(Load(UnnamedEnvironment::kRead), std::vector{Message::kUnknownIlluminant});
  EXPECT_EQ(state.display.view, 6);
}

TEST_F(Configuration, FollowsTheNamesFromFileToFile) {
  written.envFileName = QStringLiteral("mine.env");
  written.instrument.controllerPort = 0;
  written.standardFileName = files.Path("mine.std");
  written.display.view = 2;
  written.standard.useReflectance = true;
  ASSERT_TRUE(WriteStartupFile(written));
  ASSERT_TRUE(WriteEnvFile(files.Path("mine.env"), written));
  ASSERT_TRUE(WriteStandardFile(written.standardFileName, {written.standard, {}, {}}));
  files.Write("vexa.cal", "another header, 7 \n");
  EXPECT_EQ(Load(), std::vector<Message>());
  EXPECT_EQ(state.instrument.controllerPort, 0);
  EXPECT_FALSE(state.instrument.serialController);
  EXPECT_EQ(state.display.view, 2);
  EXPECT_TRUE(state.standard.useReflectance);
  EXPECT_EQ(state.instrument.calibrationShiftNm, 7);

  files.Write("mine.std", "broken");
  EXPECT_EQ(Load(), std::vector{Message::kStandardVersionRefused});
  EXPECT_FALSE(state.standard.useReflectance);
}

TEST_F(Configuration, ABrokenEnvironmentIsToldAndNothingElseIsLost) {
  // Every part of it differs from its default, and all but the end can be read.
  written.display.view = 5;
  written.display.tickPercent = 2.5;
  written.colour = {4, false, 500, 600};
  written.referenceSetting.fixedValue = 9.5;
  written.thickness.enabled = true;
  written.thickness.coat.fixedValue = 1.9;
  written.standardFileName = QStringLiteral("mine.std");
  written.instrument.samplingTimeMs = 30;
  ASSERT_TRUE(WriteStartupFile(written));
  ASSERT_TRUE(WriteEnvFile(files.Path("good.env"), written));
  ASSERT_TRUE(WriteEnvFile(files.Path("defaults.env"), Settings()));
  const QString path = files.Write("vexa.env", files.Read("good.env").chopped(7));
  for (const bool atStart : {true, false}) {
    state.measurementSlots[0].valid = true;
    if (atStart) {
      EXPECT_EQ(Load(), std::vector{Message::kEnvironmentReadError});
    } else {
      EXPECT_TRUE(
          ApplyEnvironment(ReadEnvironment(files.Path("good.env"), files.Directory()), state));
      EXPECT_EQ(state.display.view, 5);
      EXPECT_TRUE(state.envFileRead);
      const Environment environment = ReadEnvironment(path, files.Directory());
      EXPECT_FALSE(ApplyEnvironment(environment, state));
      EXPECT_EQ(environment.notices.size(), 1);
    }
    ASSERT_TRUE(WriteEnvFile(files.Path("now.env"), state));
    EXPECT_EQ(files.Read("now.env").toStdString(), files.Read("defaults.env").toStdString())
        << atStart;
    EXPECT_FALSE(state.envFileRead);
    EXPECT_EQ(state.envFileName, QStringLiteral("vexa.env"));
    EXPECT_TRUE(state.measurementSlots[0].valid);
  }
}

TEST_F(Configuration, CalibrationShiftsThatAreNoneLeaveTheDefault) {
  for (const char* bytes :
       {"", "header", "header\r\n", "header\r\n 8 ", "header\r\n-1", "header\r\nx"}) {
    files.Write("vexa.cal", bytes);
    EXPECT_EQ(Load(), std::vector{Message::kSettingsReadError}) << bytes;
    EXPECT_EQ(state.instrument.calibrationShiftNm, 4) << bytes;
  }
}

}  // namespace
}  // namespace vexa

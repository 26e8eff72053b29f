// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/configuration.h"

#include <gtest/gtest.h>

#include "files/environment_file.h"
#include "files/startup_file.h"
#include "standards/standard_file.h"
#include "support/prepared_answers.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

class Configuration : public testing::Test {
 protected:
  Configuration() { state.programDirectory = written.programDirectory = files.Directory(); }

  test::TemporaryFiles files;
  test::PreparedAnswers messages;
  VEXATYPE written;
  VEXATYPE state;
};

TEST_F(Configuration, WithoutAnEnvironmentTheDefaultsHold) {
  written.envFileName = QStringLiteral("gone.env");
  written.instrument.controllerPort = 3;
  for (const bool named : {false, true}) {
    EXPECT_TRUE(!named || WriteStartupFile(written));
    state.instrument.controllerPort = 9;
    state.instrument.averagingCount = 8;
    LoadConfiguration(state, messages);
    EXPECT_EQ(state.instrument.controllerPort, 5);
    EXPECT_EQ(state.instrument.averagingCount, 1);
    EXPECT_EQ(state.envFileName, QStringLiteral("vexa.env"));
    EXPECT_EQ(state.instrument.calibrationShiftNm, 4);
    EXPECT_TRUE(messages.Take().empty()) << named;
  }
}

TEST_F(Configuration, FollowsTheNamesFromFileToFile) {
  written.envFileName = QStringLiteral("mine.env");
  written.instrument.controllerPort = 0;
  written.standardFileName = files.Path("mine.std");
  written.display.view = 2;
  written.standard.useReflectance = true;
  ASSERT_TRUE(WriteStartupFile(written));
  ASSERT_TRUE(WriteEnvFile(files.Path("mine.env"), written));
  ASSERT_TRUE(WriteStandardFile(written.standardFileName, written.standard, {}, {}));
  files.Write("vexa.cal", "another header, 7 \n");
  LoadConfiguration(state, messages);
  EXPECT_EQ(state.instrument.controllerPort, 0);
  EXPECT_FALSE(state.instrument.serialController);
  EXPECT_EQ(state.display.view, 2);
  EXPECT_TRUE(state.standard.useReflectance);
  EXPECT_EQ(state.instrument.calibrationShiftNm, 7);
  EXPECT_TRUE(messages.Take().empty());
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
  ASSERT_TRUE(WriteEnvFile(files.Path("defaults.env"), VEXATYPE()));
  const QString path = files.Write("vexa.env", files.Read("good.env").chopped(7));
  for (const bool atStart : {true, false}) {
    state.measurementSlots[0].valid = true;
    if (atStart) {
      LoadConfiguration(state, messages);
    } else {
      EXPECT_TRUE(LoadEnvironment(files.Path("good.env"), state, messages));
      EXPECT_EQ(state.display.view, 5);
      EXPECT_FALSE(LoadEnvironment(path, state, messages));
    }
    EXPECT_EQ(messages.Take().size(), 1U);
    ASSERT_TRUE(WriteEnvFile(files.Path("now.env"), state));
    EXPECT_EQ(files.Read("now.env").toStdString(), files.Read("defaults.env").toStdString())
        << atStart;
    EXPECT_TRUE(state.measurementSlots[0].valid);
  }
}

TEST_F(Configuration, CalibrationShiftsThatAreNoneLeaveTheDefault) {
  for (const char* bytes :
       {"", "header", "header\r\n", "header\r\n 8 ", "header\r\n-1", "header\r\nx"}) {
    files.Write("vexa.cal", bytes);
    LoadConfiguration(state, messages);
    EXPECT_EQ(state.instrument.calibrationShiftNm, 4) << bytes;
  }
}

}  // namespace
}  // namespace vexa

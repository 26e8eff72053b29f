// SPDX-License-Identifier: GPL-3.0-or-later
// The daily check with the window's own buttons on the virtual instrument, whose lamp ages and
// whose shutter leaks.
#include <QLabel>
#include <QProcess>
#include <QPushButton>

#include "app/main_window_test.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "records/daily_check_events.h"
#include "records/record_settings.h"
#include "views/statistics/daily_check_window.h"
#include "views/statistics/decision_dialog.h"

namespace vexa {
namespace {

class DailyCheckOnInstrument : public test::WindowTest {
 protected:
  void SetUp() override {
    VEXATYPE settings;
    settings.programDirectory = files.Directory();
    settings.referenceSetting.kind = DispersionKind::kFixedValue;
    ASSERT_TRUE(WriteStartupFile(settings));
    ASSERT_TRUE(WriteEnvFile(CompletePath(settings, settings.envFileName), settings));
    instrument.start(QStringLiteral(VEXA_BIN_DIR "/vexa-simulator"),
                     files.Words("--dir @ --pace none"));
    ASSERT_TRUE(instrument.waitForReadyRead(30000));
    window =
        std::make_unique<VEXA>(Services{messages, dialogs, [this] { return now; },
                                        [this](const VEXATYPE&) {
                                          return std::make_unique<frmComH8Ctrl>([this](int port) {
                                            return SerialPortPath(files.Directory(), port);
                                          });
                                        }},
                               files.Directory());
    test::Done(window->Load());
    window->Commands().dailyCheck->trigger();
    check = window->findChild<DailyCheckWindow*>();
    ASSERT_NE(check, nullptr);
  }
  void TearDown() override {
    window.reset();
    instrument.terminate();
    instrument.waitForFinished();
  }
  QWidget& Window() override { return *check; }

  void Tell(const QByteArray& line) {
    instrument.write(line + '\n');
    ASSERT_TRUE(instrument.waitForBytesWritten(5000));
    ASSERT_TRUE(QTest::qWaitFor([this] { return instrument.bytesAvailable() > 0; }, 5000))
        << line.toStdString();
    instrument.readAll();
  }

  void Step() {
    Press("MeasureStep");
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return Find<QPushButton>("MeasureStep").isEnabled(); }, 30000));
  }

  // Background, reference and check piece of the next day, at eight. The instrument puts the
  // reference on its stage after each background, and then always the same glass.
  void CheckNextDay() {
    now = now.addDays(1);
    Step();
    Step();
    Step();
  }

  DailyCheckHistory History() {
    return LoadDailyChecks(RecordStorePath(files.Directory()), Station()).value;
  }
  QString Station() {
    return ReadRecordSettings(files.Directory()).value_or(RecordSettings()).station;
  }

  // Presses the button, gives the reason, and presses OK.
  void Decide(const char* button, const char* reason) {
    Press(button);
    auto* dialog = check->findChild<DecisionDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(test::Child<QPushButton>(*dialog, "OK").isEnabled()) << "without a reason";
    test::Type(*dialog, "DecisionReason", reason);
    test::Click(*dialog, "OK");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QDateTime now{{2026, 3, 1}, {8, 0}};
  QProcess instrument;
  std::unique_ptr<VEXA> window;
  DailyCheckWindow* check = nullptr;
};

TEST_F(DailyCheckOnInstrument, AnAgeingLampAndALeakingShutterTurnItRed) {
  for (int day = 0; day < kFewestCheckDays; ++day) {
    EXPECT_FALSE(Find<QPushButton>("FreezeLimits").isEnabled()) << day;
    CheckNextDay();
  }
  ASSERT_EQ(History().checks.size(), static_cast<std::size_t>(kFewestCheckDays));
  EXPECT_EQ(History().checks.back().judgement.verdict, CheckVerdict::kCollecting);
  Decide("FreezeLimits", "first limits");
  ASSERT_TRUE(History().limits);
  CheckNextDay();
  EXPECT_EQ(History().checks.back().judgement.verdict, CheckVerdict::kGreen)
      << Text("CheckReasons");
  EXPECT_FALSE(Find<QPushButton>("ReleaseHold").isEnabled());

  struct Wear {
    const char* line;
    CheckValue first;  // of those that must have been found
  };
  for (const Wear& wear : {Wear{"lamp-age 5000", CheckValue::kLamp600},
                           Wear{"shutter-leak 20", CheckValue::kDarkLevel}}) {
    Tell(wear.line);
    CheckNextDay();
    ASSERT_TRUE(History().hold) << wear.line;
    const auto findings = History().hold->findings;
    EXPECT_TRUE(std::ranges::count(findings, wear.first, &CheckFinding::value) > 0)
        << wear.line << '\n'
        << Text("CheckReasons");
    EXPECT_TRUE(Text("CheckReasons").find("3σ") != std::string::npos) << Text("CheckReasons");
    Decide("ReleaseHold", "known, lamp is ordered");
    EXPECT_FALSE(History().hold) << wear.line;
  }
  for (const test::ShownMessage& shown : messages.Take()) {
    EXPECT_EQ(shown, test::ShownMessage{Message::kMeasureOver}) << "once the slots are full";
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// The daily check with the window's own buttons on the virtual instrument, whose lamp ages and
// whose shutter leaks; and a gauge study.
#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include "app/main_window_test.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "records/daily_check_events.h"
#include "records/gauge_plan.h"
#include "records/record_settings.h"
#include "views/statistics/decision_dialog.h"

namespace vexa {
namespace {

class StudyOnInstrument : public test::WindowTest {
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
    LoadWindow();
  }
  void LoadWindow() {
    window =
        std::make_unique<VEXA>(Services{messages, dialogs, [this] { return now; },
                                        [this](const VEXATYPE&) {
                                          return std::make_unique<frmComH8Ctrl>([this](int port) {
                                            return SerialPortPath(files.Directory(), port);
                                          });
                                        }},
                               files.Directory());
    test::Done(window->Load());
  }
  void Open(QAction* command, const char* objectName) {
    command->trigger();
    study = window->findChild<QDialog*>(QLatin1String(objectName));
    ASSERT_NE(study, nullptr);
  }
  void TearDown() override {
    window.reset();
    instrument.terminate();
    instrument.waitForFinished();
  }
  QWidget& Window() override { return *study; }

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

  DailyCheckHistory History() { return LoadDailyChecks(RecordStorePath(files.Directory())).value; }

  // Presses the button, gives the reason, and presses OK.
  void Decide(const char* button, const char* reason) {
    Press(button);
    auto* dialog = study->findChild<DecisionDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(test::Child<QPushButton>(*dialog, "OK").isEnabled()) << "without a reason";
    test::Type(*dialog, "DecisionReason", reason);
    test::Click(*dialog, "OK");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QDateTime now{{2026, 3, 1}, {8, 0}};
  QProcess instrument;
  std::unique_ptr<VEXA> window;
  QDialog* study = nullptr;
};

TEST_F(StudyOnInstrument, AnAgeingLampAndALeakingShutterTurnTheCheckRed) {
  Open(window->Commands().dailyCheck, "DailyCheckWindow");
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
  for (const Wear& wear : {Wear{"lamp-age 500", CheckValue::kLamp600},
                           Wear{"shutter-leak 2", CheckValue::kDarkLevel}}) {
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
    EXPECT_EQ(shown, (test::ShownMessage{Message::kUsesSlot, {QStringLiteral("10")}}))
        << "once the slots are full";
  }
}

TEST_F(StudyOnInstrument, TheHistoryOfADemonstrationShowsAnAgedLamp) {
  window.reset();
  instrument.terminate();
  ASSERT_TRUE(instrument.waitForFinished());
  ASSERT_EQ(QProcess::execute(QStringLiteral(VEXA_BIN_DIR "/vexa"), files.Words("--demo @")), 0);
  now = QDateTime::currentDateTime();
  instrument.start(QStringLiteral(VEXA_BIN_DIR "/vexa-simulator"),
                   files.Words("--dir @ --pace none --lamp-age 500"));
  ASSERT_TRUE(instrument.waitForReadyRead(30000));
  LoadWindow();
  ASSERT_EQ(History().checks.size(), 26U);
  EXPECT_EQ(std::ranges::count(History().checks, CheckVerdict::kGreen,
                               [](const JudgedCheck& check) { return check.judgement.verdict; }),
            6);
  Open(window->Commands().dailyCheck, "DailyCheckWindow");
  CheckNextDay();
  ASSERT_EQ(History().checks.size(), 27U);
  EXPECT_EQ(History().checks.back().judgement.verdict, CheckVerdict::kRed);
}

TEST_F(StudyOnInstrument, AGaugeStudyShowsNobodyWhatItMeasures) {
  for (const char* button : {"Background", "Reference", "Mes10"}) {
    test::Click(*window, button);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->Desk().IsIdle(); }, 30000));
  }
  Open(window->Commands().gaugeStudy, "GaugeStudyWindow");
  Find<QLineEdit>("StudyName").setText(QStringLiteral("GRR"));
  Find<QLineEdit>("Operators").setText(QStringLiteral("A, B"));
  Find<QSpinBox>("Parts").setValue(2);
  Find<QSpinBox>("Repeats").setValue(2);
  Press("MakePlan");
  int asked = 0;
  for (int place = 1; place <= 3; ++place) {
    now = now.addSecs(60);
    Press("MeasureGauge");
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return Find<QPushButton>("MeasureGauge").isEnabled(); }, 30000));
    EXPECT_FALSE(window->State().Slot(10)->valid) << "the main window shows nothing of it";
    asked += static_cast<int>(messages.Take().size());
  }
  EXPECT_EQ(asked, 1) << "what stood in the slot goes only with consent";

  RecordStore store;
  ASSERT_EQ(store.Open(RecordStorePath(files.Directory()), RecordStore::Mode::kRead),
            StoreFault::kNone);
  RecordQuery query;
  query.lot = QStringLiteral("GRR");
  const QList<RecordSummary> records = store.Search(query).value;
  ASSERT_EQ(records.size(), 3);
  EXPECT_EQ(records.constFirst().sampleNumber, QStringLiteral("GRR 3")) << "not the part";
  const auto sessions = LoadGaugeSessions(RecordStorePath(files.Directory())).value;
  ASSERT_EQ(sessions.size(), 1U);
  EXPECT_EQ(sessions.front().Done(), 3U);
  const auto reading = ToEvent(store.Events(QStringLiteral("gauge-reading"), {}, 1).value[0].row);
  EXPECT_EQ(reading->data[QStringLiteral("sample")].toString(), records.constFirst().id);
  EXPECT_EQ(reading->data[QStringLiteral("part")].toInt(), sessions.front().order[2].part + 1);

  for (int place = 4; place <= 8; ++place) {
    EXPECT_TRUE(Find<QLabel>("GaugeGrade").text().isEmpty());
    now = now.addSecs(60);
    Press("MeasureGauge");
    ASSERT_TRUE(QTest::qWaitFor(
        [this, place] {
          return place < 8 ? Find<QPushButton>("MeasureGauge").isEnabled()
                           : !Find<QLabel>("GaugeGrade").text().isEmpty();
        },
        30000));
  }
  EXPECT_GT(Find<QTableWidget>("Variance").rowCount(), 0) << "the result of what was measured";
}

}  // namespace
}  // namespace vexa

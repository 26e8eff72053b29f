// SPDX-License-Identifier: GPL-3.0-or-later
// Lots in the running program, measured by keys alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTableWidget>

#include "app/main_window_test.h"
#include "records/daily_check_events.h"
#include "records/lot_content.h"
#include "records/record_settings.h"
#include "standards/standard_file.h"
#include "support/pdf_words.h"
#include "views/lot/lot_window.h"
#include "views/lot/verdict_panel.h"

namespace vexa {
namespace {

// With a reference of 500 counts above a background of 100 and 4 %, a lens of 300 counts reflects
// 2 %, one of 400 counts 3 %.
constexpr int kGood = 300;
constexpr int kBad = 400;

class LotMeasuring : public test::MainWindowTest {
 protected:
  void SetUp() override {
    StandardContents contents;
    contents.standard.averageReflectance = {true, 2.5, 1.0};
    ASSERT_TRUE(WriteStandardFile(Path("ar.std"), contents));
    WriteRecipe({});
    StartPatient();
    OpenLots();
  }

  void WriteRecipe(const QByteArray& more) const {
    peer.files.Write("ar.json", R"({"format": "VEXA-KT recipe", "version": 1, "name": "AR",
                                    "standard": "ar.std", "referenceAgeLimitMinutes": 30)" +
                                    more + "}");
  }

  void OpenLots() {
    window->Commands().lotMeasurement->trigger();
    lots = window->findChild<LotWindow*>();
    ASSERT_NE(lots, nullptr);
    // Two measurements of one moment would be one record.
    QObject::connect(&window->Desk(), &InstrumentDesk::Began, lots,
                     [this] { now = now.addSecs(1); });
  }

  // The recipe is the only one, and chosen; the focus is on the lot.
  void Begin(const char* lot) {
    Keys("LotName", lot);
    Key("LotName", Qt::Key_Return);
    Keys("LotOperator", "佐藤");
    Key("LotOperator", Qt::Key_Return);
    WaitUntilIdle();
  }

  void Keys(const char* field, const char* text) {
    auto& line = test::Child<QLineEdit>(*lots, field);
    line.insert(QString::fromUtf8(text));
  }
  void Key(const char* field, int key) {
    QTest::keyClick(&test::Child<QLineEdit>(*lots, field), static_cast<Qt::Key>(key));
  }
  // A key while every pixel has the value, until what it measures has ended.
  void Press(int key, int pixels) {
    now = now.addSecs(10);
    peer.SetLines(test::FlatLines(1, pixels));
    Key("LotNumber", key);
    WaitUntilIdle();
    QApplication::processEvents();
  }
  void Scan(const char* number, int pixels) {
    QTest::keyClicks(&test::Child<QLineEdit>(*lots, "LotNumber"), QLatin1String(number));
    Press(Qt::Key_Return, pixels);
  }
  void TakeFrames() {
    Press(Qt::Key_Space, 100);
    Press(Qt::Key_Return, 500);
  }

  std::string Panel() {
    const VerdictPanel::Content& shown = test::Child<VerdictPanel>(*lots, "VerdictPanel").Shown();
    return (shown.word + u' ' + shown.number).toStdString();
  }
  std::string LotText(const char* label) {
    return test::Child<QLabel>(*lots, label).text().toStdString();
  }

  std::vector<std::string> Rows() {
    RecordStore store;
    EXPECT_EQ(store.Open(RecordStorePath(peer.Directory()), RecordStore::Mode::kRead),
              StoreFault::kNone);
    std::vector<std::string> rows;
    for (const LotRow& row : ReadLot(store, QStringLiteral("L1")).value.rows) {
      rows.push_back((row.sample.sampleNumber + u' ' + VerdictWord(VerdictOf(row.sample)) +
                      (row.holds ? QString() : QStringLiteral(" old")) +
                      (row.sample.reason.isEmpty() ? QString() : u' ' + row.sample.reason))
                         .toStdString());
    }
    return rows;
  }

  LotWindow* lots = nullptr;
};

TEST_F(LotMeasuring, TakesOneKeyOrOneScanALens) {
  Begin("L1");
  EXPECT_EQ(Panel(), "準備 ﾊﾞｯｸｸﾞﾗﾝﾄﾞ測定");
  TakeFrames();
  EXPECT_EQ(Panel(), "測定可 ");
  Scan("A-01", kGood);
  EXPECT_EQ(Panel(), "OK A-01");
  Press(Qt::Key_Space, kBad);
  EXPECT_EQ(Panel(), "NG A-02");
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(LotText("LotYield"), "歩留り 50.0%");

  // The one before again, because another reason is chosen than the first.
  Press(Qt::Key_F4, kGood);
  EXPECT_EQ(Panel(), "測定済み A-02");
  Key("LotNumber", Qt::Key_Down);
  Press(Qt::Key_Return, kGood);
  EXPECT_EQ(Panel(), "OK A-02");
  // One that is scanned twice is asked about; another scan is another lens.
  Scan("A-01", kBad);
  EXPECT_EQ(Panel(), "測定済み A-01");
  Scan("A-03", kGood);
  EXPECT_EQ(Panel(), "OK A-03");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"A-01 OK", "A-02 NG old", "A-02 OK 汚れを拭いた",
                                              "A-03 OK"}));
  EXPECT_EQ(LotText("LotYield"), "歩留り 100.0%");

  // The slots are used round and round, and nothing is asked.
  for (int lens = 4; lens <= 12; ++lens) {
    Press(Qt::Key_Space, kGood);
  }
  EXPECT_EQ(Panel(), "OK A-12");
  EXPECT_EQ(window->State().Slot(3)->info.sampleNumber, QStringLiteral("A-12"));
  EXPECT_EQ(window->State().Slot(4)->info.sampleNumber, QStringLiteral("A-03"));
  EXPECT_EQ(messages.Take(), test::Shown());

  // A crash, and the lot goes on where it was.
  Start();
  OpenLots();
  Begin("L1");
  EXPECT_EQ(LotText("LotCounts"), "レンズ 12   OK 12   NG 0");
}

TEST_F(LotMeasuring, PausesForAFrameThatIsDue) {
  Begin("L1");
  TakeFrames();
  Press(Qt::Key_Space, kGood);
  now = now.addSecs(1800);
  Scan("B-7", kGood);
  EXPECT_EQ(Panel(), "準備 ﾘﾌｧﾚﾝｽ測定") << "a scanned lens is no reference";
  Press(Qt::Key_Return, 500);
  EXPECT_EQ(test::Child<QLineEdit>(*lots, "LotNumber").text(), QStringLiteral("B-7"));
  Press(Qt::Key_Space, kGood);
  EXPECT_EQ(Panel(), "OK B-7");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"1 OK", "B-7 OK"}));
}

TEST_F(LotMeasuring, ANumberThatWaitsIsNotTakenForWhatIsAsked) {
  Begin("L1");
  TakeFrames();
  peer.SetLines(test::FlatLines(1, kBad));
  for (const char* number : {"D-1", "D-2", "D-3"}) {
    QTest::keyClicks(&test::Child<QLineEdit>(*lots, "LotNumber"), QLatin1String(number));
    Key("LotNumber", Qt::Key_Return);
  }
  WaitUntilIdle();
  QApplication::processEvents();
  const auto field = [this] {
    return test::Child<QLineEdit>(*lots, "LotNumber").text().toStdString();
  };
  EXPECT_EQ(field(), "D-2");
  Press(Qt::Key_F4, kGood);
  EXPECT_EQ(Panel(), "測定済み D-1");
  Press(Qt::Key_Return, kGood);
  EXPECT_EQ(Panel(), "OK D-1") << "the lens that was asked about";
  now = now.addSecs(1800);
  Press(Qt::Key_Return, 500);
  EXPECT_EQ(LotText("LotSaid"), "") << "the reference is measured at once";
  EXPECT_EQ(field(), "D-2") << "in the order of the scans";
  Press(Qt::Key_Return, kGood);
  Press(Qt::Key_Return, kGood);
  EXPECT_EQ(Rows(),
            (std::vector<std::string>{"D-1 NG old", "D-1 OK 置き直し", "D-2 OK", "D-3 OK"}));
}

TEST_F(LotMeasuring, TellsAFaultAndKeepsWhatIsTypedMeanwhile) {
  Begin("L1");
  TakeFrames();
  // The measurement is refused; what is scanned meanwhile is for later.
  peer.At(2, test::PeerAction::kErrorReply);
  QTest::keyClicks(&test::Child<QLineEdit>(*lots, "LotNumber"), QStringLiteral("C-1"));
  Key("LotNumber", Qt::Key_Return);
  QTest::keyClicks(&test::Child<QLineEdit>(*lots, "LotNumber"), QStringLiteral("C-2"));
  Key("LotNumber", Qt::Key_Return);
  Key("LotNumber", Qt::Key_Return);
  EXPECT_NE(LotText("LotHint").find("C-2"), std::string::npos);
  EXPECT_EQ(LotText("LotSaid"), "測定中です。終わるまで待ってください。");
  WaitUntilIdle();
  QApplication::processEvents();
  EXPECT_EQ(Panel(), "エラー C-1");
  EXPECT_EQ(test::Child<QLineEdit>(*lots, "LotNumber").text(), QStringLiteral("C-2"));
  EXPECT_EQ(messages.Take(), test::Shown()) << "no dialog takes the keys";
  test::Child<QLineEdit>(*lots, "LotNumber").clear();
  Press(Qt::Key_Return, kGood);
  EXPECT_EQ(Panel(), "OK C-1") << "the same lens, measured again";
  EXPECT_EQ(Rows(), (std::vector<std::string>{"C-1 OK"}));
}

TEST_F(LotMeasuring, ShowsTheLightUntilALensIsMeasured) {
  Begin("L1");
  TakeFrames();
  peer.SetLines(test::FlatLines(1, 1234));
  Key("LotNumber", Qt::Key_F7);
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return LotText("LightPeak").find("1234") != std::string::npos; }));
  EXPECT_FALSE(window->Desk().IsIdle());
  peer.SetLines(test::FlatLines(1, kGood));
  Key("LotNumber", Qt::Key_Space);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Panel() == "OK 1"; }));
  EXPECT_EQ(window->Desk().CurrentActivity(), InstrumentDesk::Activity::kWatching)
      << "and again for the next lens";
  // Nobody begins it again while the program waits for its end.
  test::Done(window->Desk().Finish());
  EXPECT_TRUE(window->Desk().IsIdle());
  EXPECT_EQ(Rows(), (std::vector<std::string>{"1 OK"})) << "no frame of it is kept";
}

TEST_F(LotMeasuring, ALensBrokenOffBetweenItsRepeatsIsNotOk) {
  lots->close();
  WriteRecipe(", \"repeats\": 2");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  OpenLots();
  Begin("L1");
  TakeFrames();
  int begun = 0;
  QObject::connect(&window->Desk(), &InstrumentDesk::Began, lots, [this, &begun] {
    if (++begun == 2) {
      QMetaObject::invokeMethod(
          lots, [this] { Key("LotNumber", Qt::Key_Escape); }, Qt::QueuedConnection);
    }
  });
  Scan("A", kGood);
  EXPECT_EQ(Panel(), "中止 A");
  EXPECT_EQ(LotText("LotCounts"), "レンズ 1   OK 0   NG 0   未完 1");
  EXPECT_EQ(LotText("LotYield"), "歩留り -");
  dialogs.save = SaveChoice{Path("lot.pdf")};
  Key("LotNumber", Qt::Key_F8);
  ASSERT_TRUE(QTest::qWaitFor([this] { return peer.files.Has("lot.pdf"); }));
  const QString report = test::PdfPages(Path("lot.pdf")).join(u'\n');
  EXPECT_TRUE(report.contains(QStringLiteral("未完 1 A"))) << report.toStdString();
  Press(Qt::Key_Return, kGood);
  EXPECT_EQ(LotText("LotCounts"), "レンズ 1   OK 1   NG 0") << "both repeats, now";
}

TEST_F(LotMeasuring, AHeldVerdictCountsOnNeitherSideUntilItIsReleased) {
  const QString store = RecordStorePath(peer.Directory());
  const QString station = UsualRecordSettings().station;
  Begin("L1");
  TakeFrames();
  DailyCheck check{{}, now, {}, {}, {}};
  ASSERT_TRUE(KeepEvent(
      store, CheckEvent({check, {CheckVerdict::kRed, {{CheckValue::kLamp440, 1}}}}, station)));
  Press(Qt::Key_Space, kBad);
  EXPECT_EQ(Panel(), "保留 1");
  EXPECT_EQ(messages.beeps, 0);
  EXPECT_EQ(LotText("LotYield"), "歩留り -");
  EXPECT_EQ(LotText("LotCounts"), "レンズ 1   OK 0   NG 0   保留 1");
  EXPECT_EQ(test::Child<QTableWidget>(*lots, "LotLast").item(0, 1)->text(), QStringLiteral("保留"));
  const auto hold = FindVerdictHold(store).value;
  ASSERT_TRUE(hold);
  ASSERT_TRUE(KeepEvent(store, ReleaseEvent(*hold, {station, QStringLiteral("品質"),
                                                    QStringLiteral("ﾗﾝﾌﾟ確認"), now})));
  Press(Qt::Key_Space, kGood);
  EXPECT_EQ(Panel(), "OK 2");
  EXPECT_EQ(LotText("LotCounts"), "レンズ 2   OK 1   NG 1");
}

TEST_F(LotMeasuring, RepeatsEachLensAsTheRecipeWantsAndReportsTheLot) {
  lots->close();
  WriteRecipe(
      R"(, "repeats": 2, "cie": {"limits": {"Rv": {"upper": 2.5}, "h": {"lower": 350, "upper": 349},
             "L": {"upper": 100}, "a": {"upper": 99}, "b": {"upper": 99}, "C": {"upper": 99},
             "deltaE00": {"upper": 99}}, "target": {"L": 20, "a": 0, "b": 0}})");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  OpenLots();
  Begin("L1");
  TakeFrames();
  Scan("A", kGood);
  Scan("B", kBad);
  EXPECT_TRUE(test::Child<VerdictPanel>(*lots, "VerdictPanel")
                  .Shown()
                  .details.contains(QStringLiteral("\nCIE Rv:NG 余裕 -0.")));
  EXPECT_EQ(LotText("LotCounts"), "レンズ 2   OK 1   NG 1");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"A OK", "A OK", "B NG", "B NG"}));
  dialogs.save = SaveChoice{Path("lot.pdf")};
  Key("LotNumber", Qt::Key_F8);
  ASSERT_TRUE(QTest::qWaitFor([this] { return peer.files.Has("lot.pdf"); }));
  const QString report = test::PdfPages(Path("lot.pdf")).join(u'\n');
  for (const char* words : {"ロット報告書 L1", "歩留り 50.0 %", "レシピ AR", "作業者 佐藤",
                            "平均反射率 [%] 4 1.0 2.5 2.624 ", "CIE測色値 (A / 2°",
                            "CIE Rv [%] 4 - 2.5 2.", "CIE h [°] 4 350.0 349.0 "}) {
    EXPECT_TRUE(report.contains(QString::fromUtf8(words))) << words << report.toStdString();
  }
  EXPECT_EQ(report.count(QStringLiteral("CIE ΔE00")), 3)
      << "in the statistics, with why it has no Cpk, and above the rows";
}

}  // namespace
}  // namespace vexa

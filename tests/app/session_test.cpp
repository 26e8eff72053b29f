// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDir>

#include "app/main_window_test.h"
#include "files/environment_file.h"
#include "files/journal.h"
#include "files/journal_records.h"
#include "files/session_image.h"
#include "files/startup_file.h"
#include "support/full_disk.h"

namespace vexa {
namespace {

using test::ShownMessage;

class KeptSession : public test::MainWindowTest {
 protected:
  void SetUp() override { Start(); }

  QStringList Journals() {
    return QDir(peer.Directory()).entryList({QStringLiteral("*.journal*")});
  }
};

TEST_F(KeptSession, IsRestoredAndGoesOn) {
  EXPECT_EQ(Journals(), QStringList());
  Measure("Background", 100);
  Measure("Reference", 500);
  Press("AccumulateChk");
  Measure("Mes2", 300);
  const SessionImage before = TakeImage(window->State());
  const ColourResult colour = window->State().Slot(2)->colour;

  messages.answers = {MessageResult::kCancel};
  Start();
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_EQ(messages.Take(),
            (std::vector<ShownMessage>{
                {Message::kRestoreSession,
                 {QStringLiteral("ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: 2026/3/9 7:05:03\rﾘﾌｧﾚﾝｽ: 2026/3/9 7:05:03\rｽﾛｯﾄ: 2\r"
                                 "累積数: 1")}}}));

  messages.answers = {MessageResult::kYes, MessageResult::kNo};
  peer.TakeFrames();
  Start();
  EXPECT_EQ(TakeImage(window->State()), before);
  EXPECT_EQ(window->State().Slot(2)->colour, colour);
  EXPECT_EQ(peer.TakeFrames().back().substr(0, 4), "A502") << "the light path is opened again";
  Measure("Mes3", 300);
  EXPECT_EQ(window->State().Slot(3)->reflectance, window->State().Slot(2)->reflectance);
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Journals(), QStringList());
}

TEST_F(KeptSession, AnEndAtOnceAsksNothingAndLeavesEverything) {
  StartPatient();
  Measure("Background", 100);
  Measure("Reference", 500);
  peer.TakeFrames();
  Measure("Mes2", 300);
  const std::string atRest = peer.TakeFrames().back();
  const SessionImage before = TakeImage(window->State());
  PressUnanswered("Mes3", 2);
  test::Done(window->EndAtOnce());
  EXPECT_EQ(messages.Take(), test::Shown{});
  EXPECT_EQ(peer.TakeFrames().back(), atRest);
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_EQ(TakeImage(window->State()), before);
}

TEST_F(KeptSession, TheOfferListsAllThatWasLeft) {
  VEXATYPE left;
  for (const int number : {2, 10}) {
    left.Slot(number)->valid = true;
  }
  for (int i = 0; i < 3; ++i) {
    (void)left.stock.StockAdd({.x = 0.3, .y = 0.3, .Y = 4.0}, true);
  }
  left.thicknessHistory.count = 2;
  Journal journal(peer.Directory());
  ASSERT_TRUE(journal.Append(ChangeRecord(EmptySession(), TakeImage(left))));
  journal.Release();
  messages.answers = {MessageResult::kNo};
  Start();
  const test::Shown offers = messages.Take();
  ASSERT_EQ(offers.size(), 1U);
  EXPECT_NE(offers[0].Text().find("。\r\rｽﾛｯﾄ: 2, 10\r累積数: 3\r膜厚ｸﾞﾗﾌ: 2\r\r"),
            std::string::npos)
      << offers[0].Text();
}

TEST_F(KeptSession, ASlotIsKeptBeforeAnyMessageAboutItIsAnswered) {
  VEXATYPE settings;
  settings.programDirectory = peer.Directory();
  settings.thickness.enabled = true;
  ASSERT_TRUE(WriteStartupFile(settings) && WriteEnvFile(Path("vexa.env"), settings));
  Start();
  Measure("Background", 100);
  Measure("Reference", 500);
  Press("AutoMesThickChk");
  int kept = 0;
  messages.whenShown = [&] {
    VEXATYPE left;
    EXPECT_TRUE(PutImage(ReadJournal(peer.files.Read("vexa.journal")).image, left));
    kept += left.Slot(1)->valid ? 1 : 0;
  };
  Measure("Mes1", 300);  // flat: there is no thickness
  EXPECT_EQ(kept, 1);
  messages.whenShown = nullptr;
}

TEST_F(KeptSession, EveryOneThatWasLeftIsOffered) {
  Measure("Background", 100);
  messages.answers = {MessageResult::kCancel};
  Start();
  Measure("Background", 200);
  const RawSpectrum newest = window->State().background;
  messages.answers = {MessageResult::kCancel, MessageResult::kYes};
  Start();
  EXPECT_EQ(window->State().background, newest);
  EXPECT_EQ(Journals().size(), 2);
}

TEST_F(KeptSession, DoesNotBringBackWhatWasClearedOrRefused) {
  Measure("Background", 100);
  Measure("Reference", 500);
  Measure("Mes2", 300);
  Measure("AllClear", 0);
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_TRUE(window->State().referenceMeasured);
  messages.answers = {MessageResult::kNo};
  Start();
  EXPECT_FALSE(window->State().referenceMeasured);
  EXPECT_EQ(Journals(), QStringList());
}

TEST_F(KeptSession, UnwritableJournalIsToldOnceAndMeasuringGoesOn) {
  {
    const test::FullDisk disk(0);
    Measure("Background", 100);
    EXPECT_EQ(messages.Take().size(), 2U) << "of the journal, and of the records";
    Measure("Reference", 500);
    Measure("Mes1", 300);
  }
  EXPECT_EQ(messages.Take(), std::vector<ShownMessage>{});
  EXPECT_TRUE(window->State().Slot(1)->valid);

  Measure("Mes2", 300);
  const SessionImage before = TakeImage(window->State());
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_EQ(TakeImage(window->State()), before) << "what was owed is written with the next change";
}

TEST_F(KeptSession, FramesTellTheirAgeAndWhatHasChanged) {
  Measure("Background", 100);
  Measure("Reference", 500);
  EXPECT_EQ(Text("BackgroundAge"), "7:05 (0分前)\n3000 ms × 1");
  now = now.addSecs(qint64{59} * 60 + 59);
  Measure("Reference", 500);
  EXPECT_EQ(Text("BackgroundAge"), "7:05 (59分前)\n3000 ms × 1");
  now = now.addSecs(1);
  Measure("Reference", 500);
  EXPECT_EQ(Text("BackgroundAge"), "7:05 (60分前)\n60分経過");
  EXPECT_EQ(Text("ReferenceAge"), "8:05 (0分前)\n3000 ms × 1");

  peer.files.Write("vexa.cal", "VEXA-KT 440-840 Ver 3.21 Calibration File\r\n 7 \r\n");
  now = now.addDays(2);
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_EQ(Text("ReferenceAge"), "3/9 8:05 (2日前)\n60分経過");
}

}  // namespace
}  // namespace vexa

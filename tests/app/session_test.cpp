// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <csignal>
#include <memory>

#include "app/vexa.h"
#include "files/session_image.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "support/prepared_answers.h"
#include "support/prepared_files.h"
#include "support/scripted_peer.h"

namespace vexa {
namespace {

using test::ShownMessage;

constexpr int kReplyTimeoutMs = 100;

class Session : public testing::Test {
 protected:
  void SetUp() override { Start(); }

  // A program that is not closed before has crashed.
  void Start() {
    window.reset();
    window = std::make_unique<VEXA>(Services{messages, files, [this] { return now; },
                                             [](const VEXATYPE& state) {
                                               return std::make_unique<frmComH8Ctrl>(
                                                   [directory = state.programDirectory](int port) {
                                                     return SerialPortPath(directory, port);
                                                   },
                                                   kReplyTimeoutMs);
                                             }},
                                    peer.Directory());
    window->show();
    window->Load();
    window->OfferSession();
  }

  void Press(const char* name, int pixels) {
    peer.SetLines(test::FlatLines(1, pixels));
    window->findChild<QPushButton*>(QLatin1String(name))->click();
  }

  QString Label(const char* name) {
    return window->findChild<QLabel*>(QLatin1String(name))->text();
  }

  QStringList Journals() {
    return QDir(peer.Directory()).entryList({QStringLiteral("*.journal*")});
  }

  QDateTime now{{2026, 3, 9}, {7, 5, 3}};
  test::ScriptedPeer peer;
  test::PreparedAnswers messages;
  test::PreparedFiles files;
  std::unique_ptr<VEXA> window;
};

TEST_F(Session, IsRestoredAndGoesOn) {
  EXPECT_EQ(Journals(), QStringList());
  Press("Background", 100);
  Press("Reference", 500);
  window->findChild<QCheckBox*>(QStringLiteral("AccumulateChk"))->click();
  Press("Mes2", 300);
  const SessionImage before = TakeImage(window->State());
  const ColourResult colour = window->State().Slot(2)->colour;

  messages.answers = {MessageResult::kCancel};
  Start();
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_EQ(
      messages.Take(),
      (std::vector<ShownMessage>{
          {"VEXA-KT ﾒｯｾｰｼﾞ: 前回のﾌﾟﾛｸﾞﾗﾑは正常に終了していません。測定ﾃﾞｰﾀを復元しますか。\r\r"
           "ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: 2026/3/9 7:05:03\rﾘﾌｧﾚﾝｽ: 2026/3/9 7:05:03\rｽﾛｯﾄ: 2\r累積数: 1\r\r"
           "いいえ: 破棄します。\rｷｬﾝｾﾙ: 次の起動まで残します。",
           35}}));

  messages.answers = {MessageResult::kYes, MessageResult::kNo};
  peer.TakeFrames();
  Start();
  EXPECT_EQ(TakeImage(window->State()), before);
  EXPECT_EQ(window->State().Slot(2)->colour, colour);
  EXPECT_EQ(peer.TakeFrames().back().substr(0, 4), "A502") << "the light path is opened again";
  Press("Mes3", 300);
  EXPECT_EQ(window->State().Slot(3)->reflectance, window->State().Slot(2)->reflectance);
  EXPECT_TRUE(window->close());
  EXPECT_EQ(Journals(), QStringList());
}

TEST_F(Session, DoesNotBringBackWhatWasClearedOrRefused) {
  Press("Background", 100);
  Press("Reference", 500);
  Press("Mes2", 300);
  Press("ALL CLEAR", 0);
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_TRUE(window->State().referenceMeasured);
  messages.answers = {MessageResult::kNo};
  Start();
  EXPECT_FALSE(window->State().referenceMeasured);
  EXPECT_EQ(Journals(), QStringList());
}

TEST_F(Session, UnwritableJournalIsToldOnceAndMeasuringGoesOn) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit whole{};
  getrlimit(RLIMIT_FSIZE, &whole);
  const rlimit none{0, whole.rlim_max};
  setrlimit(RLIMIT_FSIZE, &none);
  Press("Background", 100);
  const std::size_t told = messages.Take().size();
  Press("Reference", 500);
  Press("Mes1", 300);
  setrlimit(RLIMIT_FSIZE, &whole);
  EXPECT_EQ(told, 1U);
  EXPECT_EQ(messages.Take(), std::vector<ShownMessage>{});
  EXPECT_TRUE(window->State().Slot(1)->valid);

  Press("Mes2", 300);
  const SessionImage before = TakeImage(window->State());
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_EQ(TakeImage(window->State()), before) << "what was owed is written with the next change";
}

TEST_F(Session, FramesTellTheirAgeAndWhatHasChanged) {
  Press("Background", 100);
  Press("Reference", 500);
  EXPECT_EQ(Label("BackgroundAge"), QStringLiteral("7:05 (0分前)\n3000 ms × 1, ｼﾌﾄ 4 nm"));
  now = now.addSecs(qint64{59} * 60 + 59);
  Press("Reference", 500);
  EXPECT_EQ(Label("BackgroundAge"), QStringLiteral("7:05 (59分前)\n3000 ms × 1, ｼﾌﾄ 4 nm"));
  now = now.addSecs(1);
  Press("Reference", 500);
  EXPECT_EQ(Label("BackgroundAge"), QStringLiteral("7:05 (60分前)\n60分経過"));
  EXPECT_EQ(Label("ReferenceAge"), QStringLiteral("8:05 (0分前)\n3000 ms × 1, ｼﾌﾄ 4 nm"));

  QFile calibration(QDir(peer.Directory()).filePath(QStringLiteral("vexa.cal")));
  ASSERT_TRUE(calibration.open(QIODevice::WriteOnly));
  calibration.write("VEXA-KT 440-840 Ver 3.21 Calibration File\r\n 7 \r\n");
  calibration.close();
  now = now.addDays(2);
  messages.answers = {MessageResult::kYes};
  Start();
  EXPECT_EQ(Label("ReferenceAge"), QStringLiteral("3/9 8:05 (2日前)\nｼﾌﾄ変更 60分経過"));
}

}  // namespace
}  // namespace vexa

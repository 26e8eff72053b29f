// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/vexa.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <cmath>

#include "files/environment_file.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "standards/standard_file.h"
#include "support/prepared_answers.h"
#include "support/prepared_files.h"
#include "support/scripted_peer.h"
#include "support/temporary_files.h"
#include "views/graph/reflectance_graph.h"

namespace vexa {
namespace {

using test::PeerAction;
using test::ShownMessage;

constexpr int kReplyTimeoutMs = 100;
const ShownMessage kAskBackground{"VEXA-KT ﾒｯｾｰｼﾞ: ﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定して下さい。", 64};
const ShownMessage kAskReference{"VEXA-KT ﾒｯｾｰｼﾞ: ﾘﾌｧﾚﾝｽを測定して下さい。", 64};
const ShownMessage kSaturated{"VEXA-KT ﾜｰﾆﾝｸﾞ: 取り込んだﾃﾞｰﾀが飽和しています。", 48};
const ShownMessage kFailed{"VEXA-KT ﾜｰﾆﾝｸﾞ: データ取得でエラーが発生しました。", 48};
const ShownMessage kOverwrite{"VEXA-KT ﾒｯｾｰｼﾞ: すでに測定されてます。上書きしてもよろしいですか？",
                              33};

class MainWindow : public testing::Test {
 protected:
  MainWindow() {
    window.show();
    window.Load();
  }

  QPushButton* Button(const char* name) {
    return window.findChild<QPushButton*>(QLatin1String(name));
  }

  // Presses a button while every pixel has the value.
  void Press(const char* name, int pixels = 100) {
    peer.SetLines(test::FlatLines(1, pixels));
    Button(name)->click();
  }

  void MeasureThrough(int lastSlot) {
    Press("Background", 100);
    Press("Reference", 500);
    for (int slot = 1; slot <= lastSlot; ++slot) {
      Press(qPrintable(QStringLiteral("Mes%1").arg(slot)), 300);
    }
    ASSERT_EQ(messages.Take(), std::vector<ShownMessage>{});
  }

  // As a part of the reflectance of the reference.
  double Reflectance(int slot) {
    return window.State().Slot(slot)->reflectance[550] / window.State().referenceReflectance[550];
  }

  QString TimeText() { return window.findChild<QLabel*>(QStringLiteral("Time"))->text(); }

  test::ScriptedPeer peer;
  test::PreparedAnswers messages;
  test::PreparedFiles files;
  VEXA window{{messages, files,
               [] {
                 return QDateTime({2026, 3, 9}, {7, 5, 3});
               },
               [](const VEXATYPE& state) {
                 return std::make_unique<frmComH8Ctrl>(
                     [directory = state.programDirectory](int port) {
                       return SerialPortPath(directory, port);
                     },
                     kReplyTimeoutMs);
               }},
              peer.Directory()};
};

TEST_F(MainWindow, MeasuresIntoASlot) {
  EXPECT_EQ(window.windowTitle(), QStringLiteral("MERIDOX VEXA-KT"));
  EXPECT_EQ(peer.TakeFrames().back(), "96392900") << "the sampling time of the settings, 3000 ms";
  EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("LightWarning"))->isVisible());
  EXPECT_EQ(TimeText(), QStringLiteral("0:00:00"));

  MeasureThrough(3);
  EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("LightWarning"))->isVisible());
  EXPECT_DOUBLE_EQ(Reflectance(3), 0.5);  // (300 - 100) / (500 - 100)
  EXPECT_FALSE(window.State().Slot(4)->valid);
  EXPECT_EQ(window.GetOption(), 3) << "the slot measured last is the one shown";
  EXPECT_EQ(TimeText(), QStringLiteral("2026/3/9 7:05:03"));

  Press("Mes10", 50);
  EXPECT_EQ(Reflectance(10), 0.0) << "darker than the background";
}

TEST_F(MainWindow, ShowsWhatRunsAndKeepsEverythingElseWaiting) {
  bool looked = false;
  auto* controller = window.findChild<QPushButton*>(QStringLiteral("Background"));
  QTimer::singleShot(0, &window, [&] {
    looked = true;
    EXPECT_EQ(controller->text(), QStringLiteral("*Backgroud*"));
    for (const char* name : {"Background", "Reference", "Mes1", "Mes10", "ALL CLEAR"}) {
      EXPECT_FALSE(Button(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(window.Commands().quit->isEnabled());
    EXPECT_FALSE(window.close()) << "the window stays while a measurement runs";
  });
  Press("Background");
  EXPECT_TRUE(looked);
  for (const char* name : {"Background", "Reference", "Mes1", "Mes10", "ALL CLEAR"}) {
    EXPECT_TRUE(Button(name)->isEnabled()) << name;
    EXPECT_FALSE(Button(name)->isChecked()) << name;
  }
  EXPECT_EQ(controller->text(), QStringLiteral("Background"));
  EXPECT_TRUE(window.Commands().quit->isEnabled());
}

TEST_F(MainWindow, AsksForWhatIsMissingFirst) {
  Press("Mes1");
  EXPECT_EQ(messages.Take(), std::vector{kAskBackground});
  Press("Reference");
  EXPECT_EQ(messages.Take(), std::vector{kAskBackground});
  Press("Background");
  Press("Mes1");
  EXPECT_EQ(messages.Take(), std::vector{kAskReference});
  EXPECT_FALSE(window.State().HasValidSlot());
  EXPECT_FALSE(window.State().referenceMeasured);
}

TEST_F(MainWindow, AsksBeforeItOverwrites) {
  MeasureThrough(1);
  messages.answers = {MessageResult::kCancel};
  Press("Mes1", 500);
  EXPECT_EQ(messages.Take(), std::vector{kOverwrite});
  EXPECT_DOUBLE_EQ(Reflectance(1), 0.5);
  Press("Mes1", 500);
  EXPECT_EQ(messages.Take(), std::vector{kOverwrite});
  EXPECT_DOUBLE_EQ(Reflectance(1), 1.0);
}

TEST_F(MainWindow, FailedMeasurementsLoseNothing) {
  struct Case {
    int frame;  ///< of the four of a sample acquisition
    PeerAction action;
    ShownMessage message;
  };
  const Case cases[] = {{1, PeerAction::kSilence, kFailed},
                        {2, PeerAction::kErrorReply, kFailed},
                        {3, PeerAction::kShortLine, kFailed}};
  MeasureThrough(1);
  for (const Case& c : cases) {
    for (const char* name : {"Mes1", "Mes2", "Reference"}) {
      peer.At(c.frame, c.action);
      Press(name, 900);
      const std::vector<ShownMessage> shown = messages.Take();
      EXPECT_EQ(shown.back(), c.message) << name;
      EXPECT_TRUE(Button(name)->isEnabled());
      EXPECT_DOUBLE_EQ(Reflectance(1), 0.5);
      EXPECT_FALSE(window.State().Slot(2)->valid);
      EXPECT_EQ(window.State().reference[550], 500.0);
    }
  }
  Press("Mes3", 4095);
  EXPECT_EQ(messages.Take(), std::vector{kSaturated});
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_FALSE(window.State().Slot(3)->valid);
  Press("Mes3", 300);
  EXPECT_DOUBLE_EQ(Reflectance(3), 0.5);
}

TEST_F(MainWindow, ClosedLightPathAfterAFailureIsShown) {
  MeasureThrough(1);
  const auto* warning = window.findChild<QWidget*>(QStringLiteral("LightWarning"));
  peer.At(3, PeerAction::kSilence);
  Press("Background");
  EXPECT_TRUE(warning->isVisible());
  EXPECT_EQ(window.State().background[550], 100.0);
  Press("Background");
  EXPECT_FALSE(warning->isVisible());
}

TEST_F(MainWindow, AllClearAsksFirst) {
  MeasureThrough(2);
  messages.answers = {MessageResult::kCancel};
  Press("ALL CLEAR");
  EXPECT_TRUE(window.State().Slot(2)->valid);
  Press("ALL CLEAR");
  const ShownMessage question{"ALL CLEAR: 全てのデータをクリアします。よろしいですか？", 33};
  EXPECT_EQ(messages.Take(), (std::vector{question, question}));
  EXPECT_FALSE(window.State().HasValidSlot());
  EXPECT_EQ(TimeText(), QStringLiteral("0:00:00"));
  EXPECT_TRUE(window.State().backgroundMeasured);
}

TEST_F(MainWindow, OptionBoxSelectsTheSlotShown) {
  MeasureThrough(2);
  window.findChild<QRadioButton*>(QStringLiteral("Mes7Option"))->click();
  EXPECT_EQ(window.GetOption(), 7);
  EXPECT_EQ(TimeText(), QStringLiteral("0:00:00"));
  window.findChild<QRadioButton*>(QStringLiteral("Mes1Option"))->click();
  EXPECT_EQ(TimeText(), QStringLiteral("2026/3/9 7:05:03"));
}

TEST_F(MainWindow, SavesTheSlots) {
  QAction* save = window.Commands().saveFileAs;
  save->trigger();
  EXPECT_EQ(messages.Take(),
            (std::vector<ShownMessage>{{"VEXA-KT 情報: 有効ﾃﾞｰﾀがありません。", 64}}));

  MeasureThrough(2);
  save->trigger();  // cancelled
  EXPECT_EQ(window.State().currentDataFileName, QString());
  const QString path = QDir(peer.Directory()).filePath(QStringLiteral("試料 1.csv"));
  files.save = SaveChoice{path.chopped(4), 1};
  save->trigger();
  EXPECT_EQ(files.filter,
            "Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat");
  EXPECT_EQ(window.State().currentDataFileName, path);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray content = file.readAll();
  EXPECT_TRUE(content.startsWith("VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,,,,,,,,,,\r\n 440,2."))
      << content.left(80).constData();
  EXPECT_EQ(content.count("\r\n"), 403);

  messages.answers = {MessageResult::kNo};
  Press("Mes3", 500);
  save->trigger();
  EXPECT_EQ(messages.Take(),
            (std::vector<ShownMessage>{
                {"VEXA-KT ﾜｰﾆﾝｸﾞ: 同ﾌｧｲﾙ名が存在します。上書き保存しますか？", 52}}));
  file.seek(0);
  EXPECT_EQ(file.readAll(), content);
}

TEST_F(MainWindow, AsksAboutTheEnvironmentAtTheEnd) {
  const QString environment = QDir(peer.Directory()).filePath(QStringLiteral("vexa.env"));
  const QString startup = QDir(peer.Directory()).filePath(QStringLiteral("vexa.int"));
  messages.answers = {MessageResult::kCancel, MessageResult::kNo};
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(QFile::exists(startup));
  EXPECT_TRUE(window.close());
  const ShownMessage question{
      "VEXA-KT ﾒｯｾｰｼﾞ: " + environment.toStdString() + "\r\r現在の環境をｾｰﾌﾞしますか。", 35};
  EXPECT_EQ(messages.Take(), (std::vector{question, question}));
  EXPECT_TRUE(QFile::exists(startup));
  EXPECT_FALSE(QFile::exists(environment));
}

TEST_F(MainWindow, SavesTheEnvironmentAtTheEnd) {
  messages.answers = {MessageResult::kYes};
  EXPECT_TRUE(window.close());
  VEXATYPE state;
  EXPECT_TRUE(
      ReadEnvFile(QDir(peer.Directory()).filePath(QStringLiteral("vexa.env")), state, messages)
          .read);
}

// Opens the window of a command, lets `act` use it, and closes it if `act` did not.
template <typename Act>
void InDialog(QAction* command, Act act) {
  QTimer::singleShot(0, command, [&act] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    if (dialog->isVisible()) {
      dialog->close();
    }
  });
  command->trigger();
}

void Enter(QWidget& dialog, const char* field, const char* text) {
  auto* edit = dialog.findChild<QLineEdit*>(QLatin1String(field));
  ASSERT_NE(edit, nullptr) << field;
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  const QString typed = QString::fromUtf8(text);
  if (typed == QString::fromLatin1(typed.toLatin1()) && !typed.contains(u'\u00e9')) {
    QTest::keyClicks(edit, typed);
  } else {
    edit->insert(typed);  // as an input method does
  }
}

void Click(QWidget& dialog, const char* button) {
  dialog.findChild<QAbstractButton*>(QLatin1String(button))->click();
}

TEST_F(MainWindow, SamplingSettingsAreCheckedAndSentAtOnce) {
  const ShownMessage timeError{
      "VEXA-KT ｴﾗｰ: ｻﾝﾌﾟﾘﾝｸﾞ時間が設定範囲を越えています。 (30 ≦ 設定値 ≦ 10000)", 16};
  const ShownMessage countError{
      "VEXA-KT ｴﾗｰ: 取り込み平均回数が設定範囲を越えています。 (1 ≦ 設定値 ≦ 16)", 16};
  struct Case {
    const char* time;
    const char* averaging;
    std::optional<ShownMessage> error;
  };
  const Case cases[] = {{"29", "1", timeError},  {"20001", "1", timeError}, {"", "1", timeError},
                        {"30", "0", countError}, {"30", "17", countError},  {"2a0.0-00", "8", {}},
                        {"30", "1", {}}};
  peer.TakeFrames();
  for (const Case& c : cases) {
    bool closed = false;
    InDialog(window.Commands().samplingSettings, [&](QWidget& dialog) {
      Enter(dialog, "Time", c.time);
      Enter(dialog, "Averaging", c.averaging);
      Click(dialog, "OK");
      closed = !dialog.isVisible();
    });
    EXPECT_EQ(closed, !c.error.has_value()) << c.time;
    EXPECT_EQ(messages.Take(), c.error ? std::vector{*c.error} : std::vector<ShownMessage>{})
        << c.time;
  }
  EXPECT_EQ(peer.TakeFrames(), (std::vector<std::string>{"96BE8B01", "96009100"}))
      << "20000 ms, 30 ms";
  EXPECT_EQ(window.State().instrument.averagingCount, 1);

  InDialog(window.Commands().samplingSettings, [](QWidget& dialog) {
    for (int i = 0; i < 20; ++i) {
      Click(dialog, "Up");
    }
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("Averaging"))->text(),
              QStringLiteral("16"));
    for (int i = 0; i < 20; ++i) {
      Click(dialog, "Down");
    }
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("Averaging"))->text(),
              QStringLiteral("1"));
  });
}

TEST_F(MainWindow, CalibrationShiftIsKeptInItsFile) {
  const QString path = QDir(peer.Directory()).filePath(QStringLiteral("vexa.cal"));
  const ShownMessage range{
      "VEXA-KT ｴﾗｰ: ｷｬﾘﾌﾞﾚｰｼｮﾝのｼﾌﾄ値が設定範囲を越えています。 (0 ≦ 設定値 ≦ 7)", 16};
  for (const char* shift : {"8", ""}) {
    InDialog(window.Commands().calibration, [shift](QWidget& dialog) {
      Enter(dialog, "Shift", shift);
      Click(dialog, "OK");
    });
    EXPECT_EQ(messages.Take(), std::vector{range});
  }
  EXPECT_FALSE(QFile::exists(path));
  InDialog(window.Commands().calibration, [](QWidget& dialog) {
    Enter(dialog, "Shift", "7");
    Click(dialog, "OK");
  });
  EXPECT_EQ(messages.Take(),
            (std::vector<ShownMessage>{
                {"VEXA-KT 情報: この設定は、再起動を含め次の測定から有効になります。"
                 "\r\rｷｬﾘﾌﾞﾚｰｼｮﾝ･ﾌｧｲﾙ名:" +
                     path.toStdString(),
                 64}}));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "VEXA-KT 440-840 Ver 3.21 Calibration File\r\n 7 \r\n");
  EXPECT_EQ(window.State().instrument.calibrationShiftNm, 7);
}

TEST_F(MainWindow, SampleInformationIsTakenOverAsTyped) {
  InDialog(window.Commands().sampleInformation, [](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("MesDate_txt10"))->text(),
              QStringLiteral("0:00:00"));
    Enter(dialog, "SampNo_txt1", "A-1, 上");
    Enter(dialog, "DevNo_txt10", "装置");
    Enter(dialog, "MesDate_txt2", "2026/03/09 07:05:03");
    Click(dialog, "OK_b");
  });
  EXPECT_EQ(messages.Take(), std::vector<ShownMessage>{});
  EXPECT_EQ(window.State().Slot(1)->info.sampleNumber, QStringLiteral("A-1, 上"));
  EXPECT_EQ(window.State().Slot(10)->info.remark2, QStringLiteral("装置"));
  EXPECT_EQ(window.State().Slot(2)->info.measuredAt, QDateTime({2026, 3, 9}, {7, 5, 3}));

  const std::pair<const char*, const char*> refused[] = {{"MesDate_txt2", "yesterday"},
                                                         {"MesDate_txt3", ""},
                                                         {"SampNo_txt1", "é"},
                                                         {"MesPoint_txt4", "😀"}};
  for (const auto& [field, text] : refused) {
    InDialog(window.Commands().sampleInformation, [&, name = field, typed = text](QWidget& dialog) {
      Enter(dialog, "SampNo_txt5", "other");
      Enter(dialog, name, typed);
      Click(dialog, "OK_b");
      EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(messages.Take().size(), 1U) << field;
    EXPECT_EQ(window.State().Slot(5)->info.sampleNumber, QString());
  }
}

TEST_F(MainWindow, CursorFollowsClickKeysAndJump) {
  MeasureThrough(1);
  auto* graph = window.findChild<ReflectanceGraph*>(QStringLiteral("ReflectanceGraph"));
  QTest::mouseClick(graph, Qt::LeftButton, {}, graph->axisRect()->rect().center());
  EXPECT_NEAR(graph->CursorNm(), 640, 1);
  const int before = graph->CursorNm();
  QTest::keyClick(graph, Qt::Key_Right);
  EXPECT_EQ(graph->CursorNm(), before + 1);
  for (const auto& [typed, nm] : {std::pair{"700", 700}, {"9999", 840}, {"1", 440}}) {
    InDialog(graph->actions().constFirst(), [text = typed](QWidget& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), QLatin1String(text));
      Click(dialog, "OK");
    });
    EXPECT_EQ(graph->CursorNm(), nm);
  }
}

TEST_F(MainWindow, AutomaticThicknessesGoIntoTheHistory) {
  test::TemporaryFiles settings;
  VEXATYPE state;
  state.thickness.enabled = true;
  state.thickness.type = ThicknessType::kC;
  ASSERT_TRUE(WriteEnvFile(settings.Path("a.env"), state));
  files.open = settings.Path("a.env");
  window.Commands().openEnvironment->trigger();
  MeasureThrough(1);
  QByteArray fringes;
  for (int pixel = 0; pixel < 512; ++pixel) {
    fringes +=
        test::FlatLines(1, 300 + static_cast<int>(std::lround(150.0 * std::sin(pixel / 20.0))))
            .first(2);
  }
  window.findChild<QAbstractButton*>(QStringLiteral("AutoMesThickChk"))->click();
  peer.SetLines(fringes);
  Button("Mes2")->click();
  EXPECT_EQ(messages.Take(), std::vector<ShownMessage>{});
  const ThicknessHistory& history = window.State().thicknessHistory;
  ASSERT_EQ(history.count, 1);
  EXPECT_EQ(history.values[0], window.State().Slot(2)->thickness.thicknessNm);
  EXPECT_GT(history.values[0], 0.0);
  Press("Mes3", 300);
  EXPECT_EQ(messages.Take().size(), 1U) << "a flat spectrum has no thickness";
  EXPECT_EQ(history.count, 1);
}

TEST_F(MainWindow, VerdictsStandInTheStatusBar) {
  test::TemporaryFiles standards;
  StandardSet set;
  set.averageReflectance = {true, 100.0, 0.0};
  set.luminousReflectance = {true, 0.5, 0.0};
  VEXATYPE state;
  state.standardFileName = standards.Path("規格.std");
  ASSERT_TRUE(WriteStandardFile(state.standardFileName, set, {}, {}));
  ASSERT_TRUE(WriteEnvFile(standards.Path("a.env"), state));
  MeasureThrough(1);
  files.open = standards.Path("a.env");
  window.Commands().openEnvironment->trigger();
  const auto panel = [this](int number) {
    return window.findChild<QLabel*>(QStringLiteral("StatusPanel%1").arg(number))->text();
  };
  EXPECT_EQ(panel(2), QString());
  EXPECT_EQ(panel(3), QStringLiteral("平均反射率:OK"));
  EXPECT_EQ(panel(4), QStringLiteral("視感反射率:NG"));
}

TEST_F(MainWindow, OpensDataFilesAndEnvironments) {
  MeasureThrough(2);
  const QDir directory(peer.Directory());
  files.save = SaveChoice{directory.filePath(QStringLiteral("a.csv")), 1};
  window.Commands().saveFileAs->trigger();
  files.save = SaveChoice{directory.filePath(QStringLiteral("環境")), 1};
  window.Commands().saveEnvironmentAs->trigger();
  EXPECT_EQ(files.filter, "Enviroment File (*.env)|*.env");
  const QString environment = directory.filePath(QStringLiteral("環境.env"));
  EXPECT_EQ(window.State().envFileName, environment);
  Press("ALL CLEAR");
  messages.Take();

  files.open = directory.filePath(QStringLiteral("a.csv"));
  window.Commands().openFile->trigger();
  EXPECT_EQ(files.filter, "ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|");
  EXPECT_NEAR(Reflectance(2), 0.5, 1e-14) << "the file has 15 digits";
  EXPECT_EQ(window.State().currentDataFileName, *files.open);

  peer.TakeFrames();
  files.open = environment;
  window.Commands().openEnvironment->trigger();
  EXPECT_EQ(files.filter, "環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|全てのﾌｧｲﾙ(*.*)|*.*|");
  EXPECT_EQ(peer.TakeFrames(), std::vector<std::string>{"96392900"}) << "its sampling time is sent";
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("StatusPanel1"))->text(),
            QStringLiteral("環境ﾌｧｲﾙ名:") + environment);
  window.Commands().saveEnvironment->trigger();
  EXPECT_EQ(messages.Take(), std::vector<ShownMessage>{});

  files.save = SaveChoice{directory.filePath(QStringLiteral("é.env")), 1};
  window.Commands().saveEnvironmentAs->trigger();
  EXPECT_EQ(messages.Take().size(), 1U) << "a name that the start-up file cannot hold";
  EXPECT_EQ(window.State().envFileName, environment);
}

class DeadController : public testing::Test {
 protected:
  DeadController() { peer.At(1, PeerAction::kSilence); }

  test::ScriptedPeer peer;
  test::PreparedAnswers messages;
  test::PreparedFiles files;
  VEXA window{{messages, files, QDateTime::currentDateTime,
               [this](const VEXATYPE&) {
                 return std::make_unique<frmComH8Ctrl>([this](int) { return peer.Path(); },
                                                       kReplyTimeoutMs);
               }},
              peer.Directory()};
};

TEST_F(DeadController, LeavesTheProgramUsable) {
  window.show();
  window.Load();
  EXPECT_EQ(messages.Take(),
            (std::vector<ShownMessage>{{"ｺﾝﾄﾛｰﾗｴﾗｰ: 通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。", 16}}));
  for (const char* name : {"Background", "Reference"}) {
    EXPECT_FALSE(window.findChild<QPushButton*>(QLatin1String(name))->isEnabled()) << name;
  }
  EXPECT_FALSE(window.Commands().samplingSettings->isEnabled());
  EXPECT_TRUE(window.Commands().saveFileAs->isEnabled());
  EXPECT_EQ(window.windowTitle(), QStringLiteral("MERIDOX VEXA-KT"));
}

TEST_F(DeadController, CanBeLeftWhileItIsAwaited) {
  window.show();
  messages.answers = {MessageResult::kNo};
  QTimer::singleShot(0, &window, [this] { EXPECT_TRUE(window.close()); });
  window.Load();
  EXPECT_EQ(messages.Take().size(), 1U) << "the question about the environment alone";
}

}  // namespace
}  // namespace vexa

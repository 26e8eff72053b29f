// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/vexa.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <cmath>
#include <functional>

#include "app/main_window_test.h"
#include "files/data_file.h"
#include "files/environment_file.h"
#include "standards/standard_file.h"
#include "support/spectra.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/graph/reflectance_graph.h"

namespace vexa {
namespace {

using test::Click;
using test::PeerAction;
using test::Shown;
using test::ShownMessage;
using test::Type;

const ShownMessage kAskBackground{Message::kMeasureBackground};
const ShownMessage kAskReference{Message::kMeasureReference};
const ShownMessage kSaturated{Message::kSaturated};
const ShownMessage kFailed{Message::kAcquisitionFailed};
const ShownMessage kOverwrite{Message::kMeasureOver};

class MainWindow : public test::MainWindowTest {
 protected:
  void SetUp() override { Start(); }

  void MeasureThrough(int lastSlot) {
    Measure("Background", 100);
    Measure("Reference", 500);
    for (int slot = 1; slot <= lastSlot; ++slot) {
      Measure(qPrintable(QStringLiteral("Mes%1").arg(slot)), 300);
    }
    ASSERT_EQ(messages.Take(), Shown{});
  }

  // As a part of the reflectance of the reference.
  double Reflectance(int slot) {
    return window->State().Slot(slot)->reflectance[550] / window->State().referenceReflectance[550];
  }

  bool Enabled(const char* name) { return Find<QWidget>(name).isEnabled(); }
  bool LightWarning() { return Find<QWidget>("Warning").isVisible(); }

  static void OpenView(VEXA& of, int view) { of.Commands().views->actions().at(view)->trigger(); }

  // Opens an environment file of these settings.
  void OpenEnvironment(const VEXATYPE& settings) {
    ASSERT_TRUE(WriteEnvFile(files.Path("a.env"), settings));
    dialogs.open = files.Path("a.env");
    window->Commands().openEnvironment->trigger();
    WaitUntilIdle();
  }
};

TEST_F(MainWindow, MeasuresIntoASlot) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("MERIDOX VEXA-KT"));
  EXPECT_EQ(peer.TakeFrames().back(), "96392900") << "the sampling time of the settings, 3000 ms";
  EXPECT_TRUE(LightWarning());
  EXPECT_EQ(Text("Time"), "0:00:00");

  MeasureThrough(3);
  EXPECT_FALSE(LightWarning());
  EXPECT_DOUBLE_EQ(Reflectance(3), 0.5);  // (300 - 100) / (500 - 100)
  EXPECT_FALSE(window->State().Slot(4)->valid);
  EXPECT_EQ(window->GetOption(), 3) << "the slot measured last is the one shown";
  EXPECT_EQ(Text("Time"), "2026/3/9 7:05:03");

  now = now.addSecs(1);
  Measure("Mes10", 50);
  EXPECT_EQ(Text("Time"), "2026/3/9 7:05:04") << "of the slot that is shown now";
  EXPECT_EQ(Reflectance(10), 0.0) << "darker than the background";
  EXPECT_EQ(window->GetOption(), 10);
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    Press(qPrintable(QStringLiteral("Mes%1Option").arg(slot)));
    EXPECT_EQ(window->GetOption(), slot);
  }

  Press("Mes7Option");
  EXPECT_EQ(window->GetOption(), 7);
  EXPECT_EQ(Text("Time"), "0:00:00");
  Press("Mes3Option");
  EXPECT_EQ(Text("Time"), "2026/3/9 7:05:03");
}

TEST_F(MainWindow, ShowsWhatRunsAndKeepsEverythingElseWaiting) {
  peer.SetLines(test::FlatLines(1, 100));
  const auto& button = Find<QAbstractButton>("Background");
  const auto expectEnabled = [this](bool expected) {
    for (const char* name : {"Background", "Reference", "Mes1", "Mes10", "AllClear", "Data"}) {
      EXPECT_EQ(Enabled(name), expected) << name;
    }
    const MenuCommands& commands = window->Commands();
    for (const QAction* action : {commands.openFile, commands.openEnvironment,
                                  commands.samplingSettings, commands.sampleInformation}) {
      EXPECT_EQ(action->isEnabled(), expected) << action->text().toStdString();
    }
  };
  Press("Background");
  EXPECT_EQ(button.text(), QStringLiteral("*Backgroud*"));
  expectEnabled(false);
  WaitUntilIdle();
  expectEnabled(true);
  EXPECT_EQ(button.text(), QStringLiteral("Background"));
  EXPECT_FALSE(button.isChecked());
  EXPECT_EQ(button.shortcut(), QKeySequence(Qt::Key_F5)) << "also the next time";
}

TEST_F(MainWindow, TheFocusComesBackToTheButtonThatMeasured) {
  for (const char* name : {"Background", "Reference", "Mes4", "Mes4", "Mes10"}) {
    Find<QWidget>("Data").setFocus();
    Measure(name, 300);
    EXPECT_EQ(window->focusWidget(), &Find<QWidget>(name)) << name;
  }
}

TEST_F(MainWindow, AMeasurementGoesOnWhileADialogIsOpen) {
  MeasureThrough(1);
  const MenuCommands& commands = window->Commands();
  int slot = 2;
  for (QAction* command : {commands.displaySettings, commands.standards, commands.calibration,
                           commands.settingsList, commands.version, commands.print}) {
    Press(qPrintable(QStringLiteral("Mes%1").arg(slot)));
    InDialog(command, [&](QWidget& dialog) {
      WaitUntilIdle();
      EXPECT_TRUE(dialog.isVisible()) << command->text().toStdString();
      EXPECT_TRUE(window->State().Slot(slot)->valid);
      EXPECT_EQ(window->GetOption(), slot);
    });
    ++slot;
  }
  EXPECT_EQ(messages.Take(), Shown{});
}

TEST_F(MainWindow, SettingsChangedWhileItMeasuresBelongToTheNextFrame) {
  peer.SetLines(test::FlatLines(1, 100));
  Press("Background");
  InDialog(window->Commands().calibration, [](QWidget& dialog) {
    Type(dialog, "Shift", "7");
    Click(dialog, "OK");
  });
  WaitUntilIdle();
  EXPECT_EQ(window->State().backgroundTaken.takenAt, now);
  EXPECT_EQ(window->State().instrument.calibrationShiftNm, 7);
  EXPECT_EQ(messages.Take().size(), 1U) << "that the shift counts from the next measurement on";
}

TEST_F(MainWindow, CancelEndsAWaitAtOnceAndTheShuttersRest) {
  StartPatient();
  MeasureThrough(1);
  peer.TakeFrames();
  Measure("Mes1", 300);
  const std::vector<std::string> atRest = peer.TakeFrames();
  for (int frame = 1; frame <= 3; ++frame) {
    messages.Take();
    PressUnanswered("Mes2", frame);
    EXPECT_TRUE(Find<QWidget>("Cancel").isVisible());
    EXPECT_EQ(Find<QAbstractButton>("Cancel").shortcut(), QKeySequence(Qt::Key_Escape));
    Press("Cancel");
    WaitUntilIdle();
    EXPECT_EQ(messages.Take(), Shown{}) << "who cancels knows";
    EXPECT_EQ(peer.TakeFrames().back(), atRest.back()) << frame;
    EXPECT_FALSE(window->State().Slot(2)->valid);
    EXPECT_FALSE(Find<QWidget>("Cancel").isVisible());
    Measure("Mes3", 300);
    EXPECT_EQ(peer.TakeFrames(), atRest) << "the next one finds all in order";
    messages.Take();
  }
}

TEST_F(MainWindow, AsksForWhatIsMissingFirst) {
  Measure("Mes1", 100);
  EXPECT_EQ(messages.Take(), std::vector{kAskBackground});
  Measure("Reference", 100);
  EXPECT_EQ(messages.Take(), std::vector{kAskBackground});
  EXPECT_FALSE(Find<QAbstractButton>("Reference").isChecked());
  Measure("Background", 100);
  Measure("Mes1", 100);
  EXPECT_EQ(messages.Take(), std::vector{kAskReference});
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_FALSE(window->State().referenceMeasured);
}

TEST_F(MainWindow, AsksBeforeItOverwrites) {
  MeasureThrough(1);
  messages.answers = {MessageResult::kCancel};
  Measure("Mes1", 500);
  EXPECT_EQ(messages.Take(), std::vector{kOverwrite});
  EXPECT_DOUBLE_EQ(Reflectance(1), 0.5);
  Measure("Mes1", 500);
  EXPECT_EQ(messages.Take(), std::vector{kOverwrite});
  EXPECT_DOUBLE_EQ(Reflectance(1), 1.0);
}

TEST_F(MainWindow, FailedMeasurementsLoseNothing) {
  // frame of the four of a sample acquisition
  const std::pair<int, PeerAction> cases[] = {
      {1, PeerAction::kSilence}, {2, PeerAction::kErrorReply}, {3, PeerAction::kShortLine}};
  MeasureThrough(1);
  for (const auto& [frame, action] : cases) {
    for (const char* name : {"Mes1", "Mes2", "Reference"}) {
      peer.At(frame, action);
      Measure(name, 900);
      EXPECT_EQ(messages.Take().back(), kFailed) << name;
      EXPECT_TRUE(Enabled(name));
      EXPECT_DOUBLE_EQ(Reflectance(1), 0.5);
      EXPECT_FALSE(window->State().Slot(2)->valid);
      EXPECT_EQ(window->State().reference[550], 500.0);
    }
  }
  Measure("Mes3", 4095);
  EXPECT_EQ(messages.Take(), std::vector{kSaturated});
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_FALSE(window->State().Slot(3)->valid);
  Measure("Mes3", 300);
  EXPECT_DOUBLE_EQ(Reflectance(3), 0.5);
}

TEST_F(MainWindow, ClosedLightPathAfterAFailureIsShown) {
  MeasureThrough(1);
  peer.At(3, PeerAction::kSilence);
  Measure("Background", 100);
  EXPECT_TRUE(LightWarning());
  EXPECT_EQ(window->State().background[550], 100.0);
  Measure("Background", 100);
  EXPECT_FALSE(LightWarning());
}

TEST_F(MainWindow, AllClearAsksFirst) {
  MeasureThrough(2);
  messages.answers = {MessageResult::kCancel};
  Press("AllClear");
  EXPECT_TRUE(window->State().Slot(2)->valid);
  Press("AllClear");
  const ShownMessage question{Message::kClearAll};
  EXPECT_EQ(messages.Take(), (std::vector{question, question}));
  EXPECT_FALSE(window->State().HasValidSlot());
  EXPECT_EQ(Text("Time"), "0:00:00");
  EXPECT_TRUE(window->State().backgroundMeasured);
}

TEST_F(MainWindow, SavesTheSlots) {
  QAction* save = window->Commands().saveFileAs;
  save->trigger();
  EXPECT_EQ(messages.Take(), Shown{Message::kNoValidData});

  MeasureThrough(2);
  save->trigger();  // cancelled
  EXPECT_EQ(window->State().currentDataFileName, QString());
  const QString path = Path("試料 1.csv");
  dialogs.save = SaveChoice{path.chopped(4), 1};
  save->trigger();
  EXPECT_EQ(dialogs.filter,
            "Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat");
  EXPECT_EQ(window->State().currentDataFileName, path);
  const QByteArray content = peer.files.Read("試料 1.csv");
  EXPECT_TRUE(content.startsWith("VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,,,,,,,,,,\r\n 440,2."))
      << content.left(80).constData();
  EXPECT_EQ(content.count("\r\n"), 403);

  messages.answers = {MessageResult::kNo};
  Measure("Mes3", 500);
  save->trigger();
  EXPECT_EQ(messages.Take(), Shown{Message::kReplaceFile});
  EXPECT_EQ(peer.files.Read("試料 1.csv"), content);
}

TEST_F(MainWindow, EverySavedFileOpensAgain) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"lens", 1, "lens.csv"}, {"lens", 2, "lens.dat"},       {"five", 3, "five.dat"},
      {"1.5", 1, "1.5.csv"},   {"typed.dat", 1, "typed.dat"}, {"typed.CSV", 2, "typed.CSV"},
  };
  MeasureThrough(1);
  for (const auto& [name, filter, file] : cases) {
    dialogs.save = SaveChoice{Path(name), filter};
    window->Commands().saveFileAs->trigger();
    const auto read = ReadDataFile(Path(file));
    ASSERT_TRUE(read) << file;
    EXPECT_NEAR(read->entries[0].reflectance[440], window->State().Slot(1)->reflectance[440], 1e-12)
        << file;
  }
}

TEST_F(MainWindow, AsksAboutTheEnvironmentAtTheEnd) {
  messages.answers = {MessageResult::kCancel, MessageResult::kNo, MessageResult::kYes};
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(peer.files.Has("vexa.int"));
  window->close();
  EXPECT_FALSE(window->isVisible());
  const ShownMessage question{Message::kSaveEnvironment, {Path("vexa.env")}};
  EXPECT_EQ(messages.Take(), (Shown{question, question}));
  EXPECT_TRUE(peer.files.Has("vexa.int"));
  EXPECT_FALSE(peer.files.Has("vexa.env"));

  Start();
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(ReadEnvFile(Path("vexa.env")));
}

TEST_F(MainWindow, ASecondWindowIsToldAndNeitherOverwritesTheOthersSettings) {
  window->Commands().saveEnvironment->trigger();
  window->close();
  Start();
  messages.Take();
  const std::unique_ptr<VEXA> first = std::move(window);
  Start();
  EXPECT_EQ(messages.Take().front(), (ShownMessage{Message::kAnotherWindow, {peer.Directory()}}));

  const ShownMessage environment{Message::kReplaceChangedFile, {Path("vexa.env")}};
  const ShownMessage calibration{Message::kReplaceChangedFile, {Path("vexa.cal")}};
  window->Commands().saveEnvironment->trigger();
  EXPECT_EQ(messages.Take(), Shown{}) << "as it was read";
  OpenView(*window, 3);
  window->Commands().saveEnvironment->trigger();
  InDialog(window->Commands().calibration, [](QWidget& dialog) {
    Type(dialog, "Shift", "7");
    Click(dialog, "OK");
  });
  messages.Take();
  const QByteArray others = peer.files.Read("vexa.env");

  for (const auto answer : {MessageResult::kNo, MessageResult::kYes}) {
    SCOPED_TRACE(static_cast<int>(answer));
    messages.answers = {answer, answer};
    first->Commands().saveEnvironment->trigger();
    EXPECT_EQ(messages.Take(), Shown{environment});
    EXPECT_EQ(peer.files.Read("vexa.env") == others, answer == MessageResult::kNo);
    first->Commands().calibration->trigger();
    auto* dialog = first->findChild<QDialog*>(QStringLiteral("CalibrationDlg"));
    ASSERT_NE(dialog, nullptr);
    Click(*dialog, "OK");
    EXPECT_EQ(messages.Take().front(), calibration);
    EXPECT_EQ(peer.files.Read("vexa.cal").contains(" 7 "), answer == MessageResult::kNo);
    dialog->close();
    EXPECT_EQ(first->State().instrument.calibrationShiftNm, 4);
  }

  messages.answers = {MessageResult::kNo};
  window->close();
  EXPECT_TRUE(peer.files.Has("vexa.int"));
  const QByteArray left = peer.files.Read("vexa.int") + "another's";
  peer.files.Write("vexa.int", left);
  messages.answers = {MessageResult::kNo, MessageResult::kNo};
  messages.Take();
  first->close();
  EXPECT_EQ(messages.Take().back(),
            (ShownMessage{Message::kReplaceChangedFile, {Path("vexa.int")}}));
  EXPECT_EQ(peer.files.Read("vexa.int"), left);
}

TEST_F(MainWindow, ClosingWhileItMeasuresAsksAndEndsInOrder) {
  const ShownMessage question{Message::kEndMeasurement};
  StartPatient();
  MeasureThrough(1);
  peer.TakeFrames();
  Measure("Mes1", 300);
  const std::string atRest = peer.TakeFrames().back();
  messages.Take();
  messages.answers = {MessageResult::kCancel};
  Press("Mes2");
  window->close();
  WaitUntilIdle();
  EXPECT_EQ(messages.Take(), std::vector{question});
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(window->State().Slot(2)->valid) << "the measurement went on";

  PressUnanswered("Mes3", 2);
  messages.answers = {MessageResult::kOk, MessageResult::kNo};
  window->close();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
  EXPECT_EQ(messages.Take().size(), 2U) << "and about the environment";
  EXPECT_EQ(peer.TakeFrames().back(), atRest);
  EXPECT_FALSE(window->State().Slot(3)->valid);
}

// Sets the text of a field at once, as an input method does.
void Insert(QWidget& dialog, const char* field, const char* text) {
  auto& edit = test::Child<QLineEdit>(dialog, field);
  edit.selectAll();
  edit.insert(QString::fromUtf8(text));
}

TEST_F(MainWindow, FitsOntoASmallScreen) {
  // Of 1024 x 600, without the frame of a window.
  const QSize room(1008, 556);
  Press("Background");
  window->resize(room);
  QCoreApplication::processEvents();
  EXPECT_EQ(window->size(), room);
}

TEST_F(MainWindow, SamplingSettingsAreCheckedAndSentAtOnce) {
  const ShownMessage timeError{Message::kSamplingTimeOutOfRange};
  const ShownMessage countError{Message::kAveragingOutOfRange};
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
    InDialog(window->Commands().samplingSettings, [&](QWidget& dialog) {
      Type(dialog, "Time", c.time);
      Type(dialog, "Averaging", c.averaging);
      Click(dialog, "OK");
      closed = !dialog.isVisible();
      if (!closed) {
        EXPECT_EQ(dialog.focusWidget()->objectName().toStdString(),
                  *c.error == timeError ? "Time" : "Averaging");
      }
    });
    EXPECT_EQ(closed, !c.error.has_value()) << c.time;
    EXPECT_EQ(messages.Take(), c.error ? std::vector{*c.error} : Shown{}) << c.time;
  }
  EXPECT_EQ(peer.TakeFrames(), (std::vector<std::string>{"96BE8B01", "96009100"}))
      << "20000 ms, 30 ms";
  EXPECT_EQ(window->State().instrument.averagingCount, 1);

  InDialog(window->Commands().samplingSettings, [](QWidget& dialog) {
    EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("Averaging"));
    const auto& hint = test::Child<QLabel>(dialog, "SamplingHint");
    for (const auto& [time, averaging, warned] :
         {std::tuple{"19999", "2", false}, {"20000", "2", true}, {"", "2", false}}) {
      Type(dialog, "Time", time);
      Type(dialog, "Averaging", averaging);
      EXPECT_EQ(!hint.text().isEmpty(), warned) << time << " ms: answered within 40 s";
    }
    for (const auto& [button, limit] : {std::pair{"Up", u"16"}, {"Down", u"1"}}) {
      for (int i = 0; i < 20; ++i) {
        Click(dialog, button);
      }
      EXPECT_EQ(test::Child<QLineEdit>(dialog, "Averaging").text(), QStringView(limit));
    }
  });
}

TEST_F(MainWindow, CalibrationShiftIsKeptInItsFile) {
  const ShownMessage range{Message::kShiftOutOfRange};
  for (const char* shift : {"8", ""}) {
    InDialog(window->Commands().calibration, [shift](QWidget& dialog) {
      Type(dialog, "Shift", shift);
      Click(dialog, "OK");
    });
    EXPECT_EQ(messages.Take(), std::vector{range});
  }
  EXPECT_FALSE(peer.files.Has("vexa.cal"));
  peer.files.Write("vexa.cal", "unreadable");
  InDialog(window->Commands().calibration, [](QWidget& dialog) {
    Type(dialog, "Shift", "7");
    Click(dialog, "OK");
  });
  EXPECT_EQ(messages.Take(), (Shown{{Message::kReplaceChangedFile, {Path("vexa.cal")}},
                                    {Message::kShiftChanged, {Path("vexa.cal")}}}));
  EXPECT_EQ(peer.files.Read("vexa.cal"), "VEXA-KT 440-840 Ver 3.21 Calibration File\r\n 7 \r\n");
  EXPECT_EQ(peer.files.Read("vexa.cal.bad"), "unreadable");
  EXPECT_EQ(window->State().instrument.calibrationShiftNm, 7);
}

TEST_F(MainWindow, SampleInformationIsTakenOverAsTyped) {
  Press("Mes7Option");
  Press("Data");
  EXPECT_EQ(OpenDialog()->focusWidget()->objectName(), QStringLiteral("SampNo_txt7"));
  OpenDialog()->close();
  InDialog(window->Commands().sampleInformation, [](QWidget& dialog) {
    EXPECT_EQ(test::Child<QLineEdit>(dialog, "MesDate_txt10").text(), QStringLiteral("0:00:00"));
    Insert(dialog, "SampNo_txt1", "A-1 上");
    Insert(dialog, "DevNo_txt10", "装置");
    Insert(dialog, "MesDate_txt2", "2026/03/09 07:05:03");
    Click(dialog, "OK_b");
  });
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(window->State().Slot(1)->info.sampleNumber, QStringLiteral("A-1 上"));
  EXPECT_EQ(window->State().Slot(10)->info.remark2, QStringLiteral("装置"));
  EXPECT_EQ(window->State().Slot(2)->info.measuredAt, QDateTime({2026, 3, 9}, {7, 5, 3}));

  const std::pair<const char*, const char*> refused[] = {{"MesDate_txt2", "yesterday"},
                                                         {"MesDate_txt3", ""},
                                                         {"SampNo_txt1", "é"},
                                                         {"SampNo_txt1", "\"A"},
                                                         {"MesPoint_txt4", "😀"}};
  for (const auto& [field, text] : refused) {
    InDialog(window->Commands().sampleInformation,
             [&, name = field, typed = text](QWidget& dialog) {
               Insert(dialog, "SampNo_txt5", "other");
               Insert(dialog, name, typed);
               Click(dialog, "OK_b");
               EXPECT_TRUE(dialog.isVisible());
             });
    EXPECT_EQ(messages.Take().size(), 1U) << field;
    EXPECT_EQ(window->State().Slot(5)->info.sampleNumber, QString());
  }

  InDialog(window->Commands().sampleInformation, [](QWidget& dialog) {
    Insert(dialog, "SampNo_txt1", "A,1");
    Click(dialog, "OK_b");
  });
  EXPECT_EQ(messages.Take(), (Shown{{Message::kSampleNumberSplits, {QStringLiteral("A,1")}}}));
  EXPECT_EQ(window->State().Slot(1)->info.sampleNumber, QStringLiteral("A,1"));
}

TEST_F(MainWindow, CursorFollowsClickKeysAndJump) {
  MeasureThrough(1);
  auto& graph = Find<ReflectanceGraph>("ReflectanceGraph");
  QTest::mouseClick(&graph, Qt::LeftButton, {}, graph.axisRect()->rect().center());
  EXPECT_NEAR(graph.CursorNm(), 640, 1);
  const int before = graph.CursorNm();
  QTest::keyClick(&graph, Qt::Key_Right);
  EXPECT_EQ(graph.CursorNm(), before + 1);
  for (const auto& [typed, nm] : {std::pair{"700", 700}, {"9999", 840}, {"1", 440}}) {
    InDialog(graph.actions().constFirst(), [text = typed](QWidget& dialog) {
      Type(dialog, "Wavelength", text);
      Click(dialog, "OK");
    });
    EXPECT_EQ(graph.CursorNm(), nm);
  }
}

TEST_F(MainWindow, AccumulatingEndsWhereTheConditionsChange) {
  MeasureThrough(0);
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"the display settings, with the points kept",
       [&] {
         messages.answers = {MessageResult::kNo};
         InDialog(window->Commands().displaySettings, [](QWidget& dialog) {
           Click(dialog, "Illuminant3");
           Click(dialog, "OK");
         });
       }},
      {"an environment", [&] { OpenEnvironment(VEXATYPE()); }},
  };
  auto& box = Find<QAbstractButton>("AccumulateChk");
  for (const auto& [name, change] : changes) {
    SCOPED_TRACE(name);
    Press("AccumulateChk");
    Measure("Mes1", 300);
    ASSERT_TRUE(box.isChecked());
    const ColourStock before = window->State().stock;
    EXPECT_GT(before.Count, 0);
    change();
    EXPECT_FALSE(box.isChecked());
    Measure("Mes1", 200);
    EXPECT_EQ(window->State().stock, before);
  }
}

TEST_F(MainWindow, AutomaticThicknessesGoIntoTheHistory) {
  state.thickness.enabled = true;
  state.thickness.type = ThicknessType::kC;
  OpenEnvironment(state);
  MeasureThrough(1);
  QByteArray fringes;
  for (int pixel = 0; pixel < 512; ++pixel) {
    fringes +=
        test::FlatLines(1, 300 + static_cast<int>(std::lround(150.0 * std::sin(pixel / 20.0))))
            .first(2);
  }
  Press("AutoMesThickChk");
  peer.SetLines(fringes);
  Press("Mes2");
  WaitUntilIdle();
  EXPECT_EQ(messages.Take(), Shown{});
  const ThicknessHistory& history = window->State().thicknessHistory;
  ASSERT_EQ(history.count, 1);
  EXPECT_EQ(history.values[0], window->State().Slot(2)->thickness.thicknessNm);
  EXPECT_GT(history.values[0], 0.0);
  Measure("Mes3", 300);
  EXPECT_EQ(messages.Take().size(), 1U) << "a flat spectrum has no thickness";
  EXPECT_EQ(history.count, 1);
}

TEST_F(MainWindow, VerdictsStandInTheStatusBar) {
  StandardSet set;
  set.averageReflectance = {true, 100.0, 0.0};
  set.luminousReflectance = {true, 0.5, 0.0};
  state.standardFileName = files.Path("規格.std");
  ASSERT_TRUE(WriteStandardFile(state.standardFileName, {set, {}, {}}));
  MeasureThrough(1);
  OpenEnvironment(state);
  EXPECT_EQ(Text("StatusPanel2"), "");
  EXPECT_EQ(Text("StatusPanel3"), "平均反射率:OK");
  EXPECT_EQ(Text("StatusPanel4"), "視感反射率:NG");
}

TEST_F(MainWindow, ShowsTheCieColoursWhereTheProgramsSettingsSaySo) {
  state.Slot(1)->valid = true;
  state.Slot(1)->reflectance = test::Flat(20.0);
  ASSERT_TRUE(WriteDataFile(Path("a.csv"), DataFileLayout::kCsv, state));
  dialogs.open = Path("a.csv");
  window->Commands().openFile->trigger();
  const auto change = [this](const char* button) {
    InDialog(window->Commands().programSettings, [button](QWidget& dialog) {
      test::Click(dialog, "ShowCie");
      test::Click(dialog, button);
    });
  };
  const auto offered = [this] { return Find<QComboBox>("DiagramKind").isVisible(); };
  const auto shown = [this] { return window->findChild<QLabel*>(QStringLiteral("CieRv")); };
  const auto marks = [this] {
    QStringList kinds;
    for (const auto* diagram : window->findChildren<ChromaticityDiagram*>()) {
      const auto ticker = diagram->xAxis->ticker().dynamicCast<QCPAxisTickerText>();
      kinds << ticker->ticks().value(0.4);
    }
    return kinds.join(u'|');
  };
  window->Commands().views->actions().at(5)->trigger();
  change("Cancel");
  EXPECT_EQ(shown(), nullptr);
  EXPECT_FALSE(offered());
  change("OK");
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->text(), QStringLiteral("20.0"));
  EXPECT_TRUE(offered());
  EXPECT_EQ(marks(), QStringLiteral("x|x"));
  auto& choice = Find<QComboBox>("DiagramKind");
  choice.setCurrentIndex(1);
  emit choice.activated(1);
  EXPECT_EQ(marks(), QStringLiteral("x (CIE)|x (CIE)"));

  change("OK");
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(marks(), QStringLiteral("x|x"));
  change("OK");
  EXPECT_EQ(marks(), QStringLiteral("x|x"));
  Start();
  EXPECT_NE(shown(), nullptr) << "kept for the next start";
}

TEST_F(MainWindow, OpensDataFilesAndEnvironments) {
  MeasureThrough(2);
  dialogs.save = SaveChoice{Path("a.csv"), 1};
  window->Commands().saveFileAs->trigger();
  dialogs.save = SaveChoice{Path("環境"), 1};
  window->Commands().saveEnvironmentAs->trigger();
  EXPECT_EQ(dialogs.filter, "Enviroment File (*.env)|*.env");
  const QString environment = Path("環境.env");
  EXPECT_EQ(window->State().envFileName, environment);
  Press("AllClear");
  messages.Take();

  dialogs.open = Path("a.csv");
  window->Commands().openFile->trigger();
  EXPECT_EQ(dialogs.filter, "ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|");
  EXPECT_NEAR(Reflectance(2), 0.5, 1e-14) << "the file has 15 digits";
  EXPECT_EQ(window->GetOption(), 1) << "the first that is filled";
  EXPECT_EQ(window->State().currentDataFileName, dialogs.open);

  // A broken one puts the defaults in force under their name, which must cost no other file.
  peer.files.Write("vexa.env", "precious");
  dialogs.open = peer.files.Write("broken.env", "none");
  window->Commands().openEnvironment->trigger();
  WaitUntilIdle();
  EXPECT_EQ(window->State().envFileName, QStringLiteral("vexa.env"));
  messages.answers = {MessageResult::kNo};
  window->Commands().saveEnvironment->trigger();
  EXPECT_EQ(messages.Take().back(),
            ShownMessage(Message::kReplaceUnreadEnvironment, {Path("vexa.env")}));
  EXPECT_EQ(peer.files.Read("vexa.env"), "precious");

  peer.TakeFrames();
  dialogs.open = environment;
  window->Commands().openEnvironment->trigger();
  WaitUntilIdle();
  EXPECT_EQ(dialogs.filter, "環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|全てのﾌｧｲﾙ(*.*)|*.*|");
  EXPECT_EQ(peer.TakeFrames(), std::vector<std::string>{"96392900"}) << "its sampling time is sent";
  EXPECT_EQ(Text("StatusPanel1"), "環境ﾌｧｲﾙ名:" + environment.toStdString());
  window->Commands().saveEnvironment->trigger();
  EXPECT_EQ(messages.Take(), Shown{});

  dialogs.save = SaveChoice{Path("é.env"), 1};
  window->Commands().saveEnvironmentAs->trigger();
  EXPECT_EQ(messages.Take().size(), 1U) << "a name that the start-up file cannot hold";
  EXPECT_EQ(window->State().envFileName, environment);
}

class DeadController : public test::MainWindowTest {
 protected:
  bool Enabled(const char* name) { return Find<QWidget>(name).isEnabled(); }
  void SetUp() override { peer.At(1, PeerAction::kSilence); }
};

TEST_F(DeadController, LeavesTheProgramUsable) {
  Start();
  EXPECT_EQ(messages.Take(), Shown{Message::kControllerFailed});
  for (const char* name : {"Background", "Reference", "Mes1", "Mes10"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  EXPECT_TRUE(Find<QWidget>("Warning").isVisible());
  EXPECT_TRUE(Text("Warning").starts_with("ｺﾝﾄﾛｰﾗ未接続"));
  EXPECT_FALSE(window->Commands().samplingSettings->isEnabled());
  EXPECT_TRUE(window->Commands().saveFileAs->isEnabled());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("MERIDOX VEXA-KT"));

  peer.TakeFrames();
  window->Commands().reconnect->trigger();
  WaitUntilIdle();
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(peer.TakeFrames().back(), "96392900") << "the sampling time in force";
  EXPECT_FALSE(window->Commands().reconnect->isEnabled());
  EXPECT_TRUE(Enabled("Mes10"));
  Measure("Background", 100);
  EXPECT_FALSE(Find<QWidget>("Warning").isVisible());
  EXPECT_TRUE(window->State().backgroundMeasured);
}

TEST_F(DeadController, CanBeLeftWhileItIsAwaited) {
  replyTimeoutMs = 600000;
  Create();
  QCoro::Task<> loading = window->Load();
  messages.answers = {MessageResult::kOk, MessageResult::kCancel};
  window->close();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Enabled("Mes1"); })) << "it starts after all";
  EXPECT_EQ(messages.Take().size(), 2U);

  Create();
  peer.At(1, PeerAction::kSilence);
  loading = window->Load();
  messages.answers = {MessageResult::kOk, MessageResult::kNo};
  window->close();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
  EXPECT_EQ(messages.Take().size(), 2U) << "to end the wait, and about the environment";
}

}  // namespace
}  // namespace vexa

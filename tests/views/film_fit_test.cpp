// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QTableWidget>

#include "support/films.h"
#include "support/pdf_words.h"
#include "support/slots.h"
#include "support/window_test.h"
#include "views/film/film_fit_window.h"
#include "views/optics/thickness_panel.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

using test::Child;
using test::Shown;

constexpr const char* kLens = "cauchy:1.4855,0.0045";
constexpr const char* kCoat = "cauchy:1.5803,0.00751";

class FilmFitting : public test::WindowTest {
 protected:
  FilmFitting() {
    Fill(1, test::Reflected(test::Coat(1500.0), 0.02));
    Fill(2, test::Reflected(test::Coat(4000.0), 0.02));
    Fill(3, test::Flat(0.0));
    Enter("Substrate", kLens);
    Enter("Layer1", kCoat);
  }
  QWidget& Window() override { return window; }

  void Fill(int slot, const ReflectanceSpectrum& reflectance) {
    state.Slot(slot)->reflectance = reflectance;
    state.Slot(slot)->valid = true;
  }
  void Enter(const char* field, const char* text) {
    Find<QLineEdit>(field).setText(QString::fromUtf8(text));
  }
  void FitAndWait(const char* button) {
    Press(button);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.IsDone(); }, 30000));
  }
  [[nodiscard]] double Fitted(int slot) const {
    const std::optional<FilmFit>& fit = state.Slot(slot)->fit;
    return fit ? fit->layers.front().thicknessNm : 0.0;
  }
  std::string Cell(int row, int column) {
    return Find<QTableWidget>("FitTable").item(row, column)->text().toStdString();
  }

  ProgramPreferences preferences{files.Directory()};
  CurrentPrinter printer{state, messages, dialogs};
  FilmFitWindow window{session, preferences, printer, messages, dialogs, 1};
};

TEST_F(FilmFitting, FitsTheSelectedSlotOrAll) {
  FitAndWait("FitSlot");
  EXPECT_NEAR(Fitted(1), 1500.0, 0.5);
  EXPECT_EQ(Fitted(2), 0.0);
  EXPECT_EQ(Cell(0, 3), "良好");
  EXPECT_TRUE(Find<QPlainTextEdit>("FitWords").toPlainText().contains(QStringLiteral("層1: 1500")));
  FitAndWait("FitAll");
  EXPECT_NEAR(Fitted(2), 4000.0, 1.0);
  EXPECT_FALSE(state.Slot(3)->fit);
  window.ShowSlot(3);
  EXPECT_EQ(Text("FitOutcome"), FilmFitFaultText(FilmFitFault::kSpectrum).toStdString());
  EXPECT_TRUE(messages.Take().empty());

  window.ShowSlot(1);
  Enter("IndexUncertainty", "1");
  FitAndWait("FitSlot");
  EXPECT_NEAR(state.Slot(1)->fit->layers.front().uncertaintyNm, 15.0, 0.5);
  EXPECT_EQ(Cell(0, 3), "良好");
  EXPECT_EQ(Cell(1, 3), "良好 (別の設定)");

  Press("AddLayer");
  Enter("Layer2", kLens);
  Find<QComboBox>("Layer2Kind").setCurrentIndex(1);
  dialogs.save = SaveChoice{files.Path("two.flm"), 1};
  Enter("Layer2From", "300");
  Press("SaveStack");
  Press("Layer1Remove");
  EXPECT_EQ(Find<QLineEdit>("Layer1").text(), QLatin1String(kLens));
  dialogs.open = files.Path("two.flm");
  Press("OpenStack");
  EXPECT_EQ(Find<QLineEdit>("Layer1").text(), QLatin1String(kCoat));
  EXPECT_EQ(Find<QComboBox>("Layer2Kind").currentIndex(), 1) << "its thickness is known";
}

TEST_F(FilmFitting, RefusesABadEntryAndPutsTheFocusOnIt) {
  window.show();
  const struct {
    const char* field;
    const char* entry;
    const char* good;
  } cases[] = {
      {"Substrate", "", kLens},         {"Substrate", "none.nk", kLens},
      {"Layer1", "0", kCoat},           {"Layer1", "cauchy:1.5", kCoat},
      {"Layer1", "-1.5", kCoat},        {"Layer1From", "70000", "50"},
      {"Layer1From", "-1", "50"},       {"Layer1To", "49", "60000"},
      {"Layer1To", "1e", "60000"},      {"RangeFrom", "439", "440"},
      {"RangeTo", "458", "840"},        {"RangeTo", "", "840"},
      {"Bandwidth", "51", "1"},         {"WavelengthUncertainty", "-0.1", "0.1"},
      {"IndexUncertainty", "101", "0"}, {"Confidence", "100", "95"},
      {"Confidence", "", "95"},
  };
  for (const auto& c : cases) {
    Enter(c.field, c.entry);
    Press("FitAll");
    const Shown shown = messages.Take();
    ASSERT_EQ(shown.size(), 1U) << c.field << ' ' << c.entry;
    EXPECT_EQ(shown[0].id, Message::kFilmFitRefused);
    EXPECT_EQ(window.focusWidget(), &Find<QLineEdit>(c.field)) << c.entry;
    EXPECT_TRUE(window.IsDone()) << "nothing is fitted";
    Enter(c.field, c.good);
  }
  FitAndWait("FitSlot");
  EXPECT_TRUE(messages.Take().empty()) << "all is good again";
  for (MeasurementSlot& slot : state.measurementSlots) {
    slot.valid = false;
  }
  Press("FitAll");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kNoValidData}}));
}

TEST_F(FilmFitting, ASpectrumThatHasGoneMeanwhileGetsNoFit) {
  Press("FitAll");
  Fill(2, test::Reflected(test::Coat(2000.0)));
  EXPECT_TRUE(QTest::qWaitFor([this] { return window.IsDone(); }));
  EXPECT_GT(Fitted(1), 0.0);
  EXPECT_EQ(Fitted(2), 0.0);
}

TEST_F(FilmFitting, TheStackIsKeptInAFileThatTheSettingsName) {
  Enter("Layer1To", "9000");
  Find<QCheckBox>("ScaleFree").setChecked(false);
  dialogs.save = SaveChoice{files.Path("膜"), 1};
  Press("SaveStack");
  EXPECT_EQ(preferences.InForce().filmStack, files.Path("膜.flm"));
  FilmFitWindow again(session, preferences, printer, messages, dialogs, 1);
  EXPECT_EQ(Child<QLineEdit>(again, "Layer1").text(), QLatin1String(kCoat));
  EXPECT_EQ(Child<QLineEdit>(again, "Layer1To").text(), QStringLiteral("9000.0"));
  EXPECT_FALSE(Child<QCheckBox>(again, "ScaleFree").isChecked());

  QByteArray reversed = files.Read("膜.flm");
  reversed.replace("9000", "20");
  for (const QByteArray& bad : {QByteArray("{}"), reversed}) {
    files.Write("bad.flm", bad);
    dialogs.open = files.Path("bad.flm");
    Press("OpenStack");
    EXPECT_EQ(messages.Take().at(0).id, Message::kFilmStackFault) << bad.toStdString();
    EXPECT_EQ(preferences.InForce().filmStack, files.Path("膜.flm"));
  }
}

TEST_F(FilmFitting, AsksBeforeAChangedStackIsLost) {
  window.show();
  Enter("Layer1To", "9000");
  emit Find<QLineEdit>("Layer1To").textEdited(QStringLiteral("9000"));
  for (const MessageResult answer : {MessageResult::kCancel, MessageResult::kYes}) {
    messages.answers = {answer};
    Press("CloseFits");
    EXPECT_EQ(messages.Take().at(0).id, Message::kFilmStackUnsaved);
    EXPECT_TRUE(window.isVisible()) << "it stays, nor was a name given to save under";
  }
  messages.answers = {MessageResult::kYes};
  dialogs.save = SaveChoice{files.Path("kept.flm"), 1};
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(files.Has("kept.flm"));
}

TEST_F(FilmFitting, FollowsEachMeasurementWhereAsked) {
  auto& each = Find<QCheckBox>("FitEachMeasurement");
  each.click();
  EXPECT_FALSE(each.isChecked()) << "the stack was not saved";
  dialogs.save = SaveChoice{files.Path("a.flm"), 1};
  each.click();
  EXPECT_TRUE(each.isChecked());
  EXPECT_TRUE(preferences.InForce().fitEachMeasurement);

  // A reference of 4 % at 5000 counts.
  state.referenceReflectance = test::Flat(4.0);
  state.instrument.calibrationShiftNm = 0;
  RawSpectrum counts;
  for (double& count : counts.Values()) {
    count = 5000.0;
  }
  session.StoreFrame(FrameKind::kReference, counts, session.ConditionsNow());
  const ReflectanceSpectrum coat = test::Reflected(test::Coat(2500.0), 0.02);
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    counts[nm] = coat[nm] * 1250.0;
  }
  test::Store(session, 5, counts);
  EXPECT_NEAR(Fitted(5), 2500.0, 0.5);
  ASSERT_EQ(state.thicknessHistory.count, 1);
  EXPECT_TRUE(state.thicknessHistory.notes[0].fitted);
  ThicknessPanel panel(session, messages);
  panel.Show(5);
  EXPECT_TRUE(Child<QLabel>(panel, "FittedThickness").text().startsWith(QStringLiteral("2500.")));

  each.click();
  test::Store(session, 5, counts);
  EXPECT_FALSE(state.Slot(5)->fit);
}

TEST_F(FilmFitting, IsCopiedAndPrinted) {
  FitAndWait("FitAll");
  Press("CopyFits");
  const QString copied = QGuiApplication::clipboard()->text();
  dialogs.save = SaveChoice{files.Path("膜厚.pdf"), 1};
  Press("PrintFits");
  const QString printed = test::PdfPages(files.Path("膜厚.pdf")).join(u' ');
  for (const QString& text : {copied, printed}) {
    for (const char* part : {kCoat, "Mes2", "1500.", "4000."}) {
      EXPECT_TRUE(text.contains(QLatin1String(part))) << part << "\n" << text.toStdString();
    }
  }
}

}  // namespace
}  // namespace vexa

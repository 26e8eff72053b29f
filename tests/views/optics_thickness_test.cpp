// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTreeWidget>
#include <cmath>
#include <numbers>

#include "support/pdf_words.h"
#include "support/spectra.h"
#include "support/window_test.h"
#include "views/graph/jamp_wave.h"
#include "views/optics/thickness_panel.h"
#include "views/optics/wave_list_dlg.h"
#include "views/paper/current_printer.h"
#include "views/print/slot_tables.h"

namespace vexa {
namespace {

using test::ShownMessage;

class Thickness : public test::WindowTest {
 protected:
  QWidget& Window() override { return panel; }

  // Fringes of a film without dispersion: minima where 2 n d is a whole number of wavelengths.
  void Fill(int slot, double opticalNm) {
    state.Slot(slot)->valid = true;
    state.Slot(slot)->reflectance = test::SpectrumOf(
        [opticalNm](int nm) { return 5.0 - std::cos(4.0 * std::numbers::pi * opticalNm / nm); });
  }
  // The main window shows a slot again when the session announces its change.
  void Compute(int slot = 1) {
    Press("ThicknessButton");
    panel.Show(slot);
  }

  CurrentPrinter printer{state, messages, dialogs};
  ThicknessPanel panel{session, messages};
};

TEST_F(Thickness, IsComputedForTheSelectedSlotAndShown) {
  state.thickness.enabled = true;
  state.filmIndex = test::Flat(1.6);
  Fill(4, 2400.0);  // minima at 800, 685.7, 600, ... nm
  panel.Show(4);
  EXPECT_EQ(Text("Thickness"), "-");
  Compute(4);
  EXPECT_TRUE(messages.Take().empty());
  EXPECT_EQ(Text("Wavelength1"), "686");
  EXPECT_EQ(Text("Wavelength2"), "800");
  EXPECT_EQ(Text("Index1"), "1.600");
  EXPECT_EQ(Text("Thickness"), "1504.4 [nm]");  // 0.5 x 686 x 800 / (1.6 x 114)
  EXPECT_EQ(state.extrema.count, state.Slot(4)->thickness.extrema.count);

  state.thickness.kind = ThicknessKind::kOptical;
  Compute(4);
  EXPECT_EQ(Text("Thickness"), "2407.0 [nd]");  // 0.5 x 686 x 800 / 114 = 2407.02
  panel.Show(5);
  EXPECT_EQ(Text("Thickness"), "-");
  EXPECT_EQ(Text("Index2"), "-");
  state.thickness.kind = ThicknessKind::kPhysical;
  panel.Show(4);
  EXPECT_EQ(Text("Thickness"), "2407.0 [nd]") << "as it was computed, whatever is set now";
}

TEST_F(Thickness, KeepsTheIndexDerivedFromASubstrateWithItsSlot) {
  state.thickness.enabled = true;
  state.thickness.coat.kind = DispersionKind::kSubstrate;
  state.substrateIndex = test::Flat(1.8);
  Fill(4, 2400.0);
  Fill(5, 3200.0);
  panel.Show(4);
  Compute(4);
  // sqrt(1.8 N(R)) at a minimum of 4 %, where N is 1.5
  EXPECT_EQ(Text("Index2"), "1.643");
  state.Slot(5)->reflectance[800] = 3.9;
  panel.Show(5);
  Compute(5);
  EXPECT_EQ(Text("Index2"), "1.639") << "N(3.9 %) is 1.49215";
  panel.Show(4);
  EXPECT_EQ(Text("Index2"), "1.643");
  EXPECT_TRUE(messages.Take().empty());
}

TEST_F(Thickness, WithoutAResultThereIsAMessage) {
  const ShownMessage disabled{Message::kThicknessDisabled};
  const ShownMessage empty{Message::kNoValidData};
  const ShownMessage tooFew{Message::kTooFewExtrema};
  Compute();
  EXPECT_EQ(messages.Take(), std::vector{disabled});
  state.thickness.enabled = true;
  state.filmIndex = test::Flat(1.6);
  Compute();
  EXPECT_EQ(messages.Take(), std::vector{empty});
  state.Slot(1)->valid = true;  // flat: no extremum
  Compute();
  EXPECT_EQ(messages.Take(), std::vector{tooFew});
  EXPECT_EQ(Text("Thickness"), "-");
}

TEST_F(Thickness, AutomaticMeasurementFollowsTheState) {
  for (const bool automatic : {true, false}) {
    state.autoThickness = automatic;
    panel.Show(1);
    EXPECT_EQ(Find<QCheckBox>("AutoMesThickChk").isChecked(), automatic);
  }
}

TEST_F(Thickness, WavelengthListHasARowForEachExtremum) {
  MeasurementSlot& slot = *state.Slot(3);
  slot.valid = true;
  slot.info = {QStringLiteral("A-003"), {}, {}, QDateTime({2026, 3, 9}, {7, 5, 3})};
  slot.thickness.extrema.entries[0] = {{600.0, 4.25}, true};
  slot.thickness.extrema.entries[1] = {{612.5, 3.5}, false};
  slot.thickness.extrema.count = 2;
  WaveListDlg dialog(state, 3, printer);
  EXPECT_EQ(test::Child<QLabel>(dialog, "WaveListSlot").text(),
            QStringLiteral("Mes3  A-003  2026/3/9 7:05:03"));
  const auto& list = test::Child<QTreeWidget>(dialog, "WaveList");
  ASSERT_EQ(list.topLevelItemCount(), 2);
  const char* const cells[] = {"2", "V", "613", "3.5000"};
  for (int column = 0; column < 4; ++column) {
    EXPECT_EQ(list.topLevelItem(1)->text(column).toStdString(), cells[column]);
  }
  dialogs.save = SaveChoice{files.Path("一覧.pdf")};
  test::Click(dialog, "Print");
  const QString printed = test::PdfPages(files.Path("一覧.pdf")).join(QString());
  EXPECT_TRUE(printed.contains(QStringLiteral("Mes3 A-003 2026/3/9 7:05:03")))
      << printed.toStdString();
  state.Slot(4)->valid = true;
  dialog.Show(4);
  EXPECT_EQ(list.topLevelItemCount(), 0) << "another slot has none";
  EXPECT_TRUE(test::Child<QLabel>(dialog, "WaveListSlot").text().endsWith(u"  -")) << "no date";
}

TEST_F(Thickness, JumpTakesAWholeNumber) {
  for (const std::int16_t view : {std::int16_t{0}, std::int16_t{6}}) {
    state.display.view = view;
    JampWave dialog(state);
    dialog.show();
    EXPECT_EQ(test::Child<QLabel>(dialog, "Unit").text(),
              view == 6 ? QStringLiteral("[1/nm]") : QStringLiteral("[nm]"));
    EXPECT_EQ(dialog.Outcome(), QStringLiteral("CANCEL"));
    EXPECT_EQ(test::Type(dialog, "Wavelength", "-6.5 x0 e"), QStringLiteral("650"));
    test::Click(dialog, "OK");
    EXPECT_EQ(dialog.Outcome(), QStringLiteral("OK"));
    EXPECT_EQ(dialog.Wavelength(), 650);
  }
}

TEST_F(Thickness, ADoubtStandsBesideTheNumberWhereverItIsShown) {
  MeasurementSlot& slot = *state.Slot(1);
  slot.valid = true;
  slot.thickness = {{500.0, 1.0}, {600.0, 1.0}, 2304.0, true, 1.6, 1.6, {}};
  const QString why = ThicknessDoubtText(ThicknessDoubt::kDisagrees);
  const auto shown = [&] {
    panel.Show(1);
    const WaveListDlg list(state, 1, printer);
    std::string where;
    where += Text("ThicknessDoubt") == why.toStdString() ? 'p' : '-';
    where += test::Child<QLabel>(list, "WaveListDoubts").text().contains(why) ? 'l' : '-';
    const std::optional<PageTable> table = ThicknessTable(state);
    where += table && table->rows.at(0).at(2).text.contains(why) ? 'r' : '-';
    where += ValueTable(state).rows.at(0).back().text.startsWith(u'▲') ? 'v' : '-';
    return where;
  };
  EXPECT_EQ(shown(), "----");
  EXPECT_TRUE(Text("Thickness").starts_with("2304.0"));
  slot.doubts = {ThicknessDoubt::kDuplicate, ThicknessDoubt::kDisagrees};
  EXPECT_EQ(shown(), "plrv");
  EXPECT_TRUE(Text("Thickness").starts_with("2304.0")) << "the number is as it was";
}

}  // namespace
}  // namespace vexa

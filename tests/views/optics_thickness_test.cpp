// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <cmath>
#include <numbers>

#include "support/prepared_answers.h"
#include "support/prepared_files.h"
#include "views/optics/jamp_wave.h"
#include "views/optics/thickness_panel.h"
#include "views/optics/wave_list_dlg.h"
#include "views/print/current_printer.h"

namespace vexa {
namespace {

using test::ShownMessage;

class Thickness : public testing::Test {
 protected:
  // Fringes of a film without dispersion: minima where 2 n d is a whole number of wavelengths.
  void Fill(int slot, double opticalNm) {
    state.Slot(slot)->valid = true;
    for (int nm = 440; nm <= 840; ++nm) {
      state.Slot(slot)->reflectance[nm] = 5.0 - std::cos(4.0 * std::numbers::pi * opticalNm / nm);
    }
  }
  std::string Text(const char* name) {
    return panel.findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  }
  void Press() { panel.findChild<QPushButton*>(QStringLiteral("ThicknessButton"))->click(); }

  VEXATYPE state;
  test::PreparedAnswers messages;
  test::PreparedFiles files;
  CurrentPrinter printer{state, messages, files};
  ThicknessPanel panel{state, messages};
};

TEST_F(Thickness, IsComputedForTheSelectedSlotAndShown) {
  state.thickness.enabled = true;
  std::ranges::fill(state.filmIndex.Values(), 1.6);
  Fill(4, 2400.0);  // minima at 800, 685.7, 600, ... nm
  panel.Show(4);
  EXPECT_EQ(Text("Thickness"), "-");
  Press();
  EXPECT_TRUE(messages.Take().empty());
  EXPECT_EQ(Text("Wavelength1"), "686");
  EXPECT_EQ(Text("Wavelength2"), "800");
  EXPECT_EQ(Text("Index1"), "1.600");
  EXPECT_EQ(Text("Thickness"), "1504.4 [nm]");  // 0.5 x 686 x 800 / (1.6 x 114)
  EXPECT_EQ(state.extrema.count, state.Slot(4)->thickness.extrema.count);

  state.thickness.kind = ThicknessKind::kOptical;
  Press();
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
  std::ranges::fill(state.substrateIndex.Values(), 1.8);
  Fill(4, 2400.0);
  Fill(5, 3200.0);
  panel.Show(4);
  Press();
  // sqrt(1.8 N(R)) at a minimum of 4 %, where N is 1.5
  EXPECT_EQ(Text("Index2"), "1.643");
  state.Slot(5)->reflectance[800] = 3.9;
  panel.Show(5);
  Press();
  EXPECT_EQ(Text("Index2"), "1.639") << "N(3.9 %) is 1.49215";
  panel.Show(4);
  EXPECT_EQ(Text("Index2"), "1.643");
  EXPECT_TRUE(messages.Take().empty());
}

TEST_F(Thickness, WithoutAResultThereIsAMessage) {
  const ShownMessage disabled{"VEXA-KT ｴﾗｰ: 膜厚測定設定が有効ではありません。", 16};
  const ShownMessage empty{"VEXA-KT 情報: 有効ﾃﾞｰﾀがありません。", 64};
  const ShownMessage tooFew{"VEXA-KT ｴﾗｰ: 検出ピーク数が２個以下で膜厚計算にｴﾗｰが発生しました。",
                            16};
  Press();
  EXPECT_EQ(messages.Take(), std::vector{disabled});
  state.thickness.enabled = true;
  Press();
  EXPECT_EQ(messages.Take(), std::vector{empty});
  state.Slot(1)->valid = true;  // flat: no extremum
  Press();
  EXPECT_EQ(messages.Take(), std::vector{tooFew});
  EXPECT_EQ(Text("Thickness"), "-");
}

TEST_F(Thickness, AutomaticMeasurementIsAChoice) {
  auto* automatic = panel.findChild<QCheckBox*>(QStringLiteral("AutoMesThickChk"));
  automatic->click();
  EXPECT_TRUE(state.autoThickness);
  automatic->click();
  EXPECT_FALSE(state.autoThickness);
  state.autoThickness = true;
  panel.Show(1);
  EXPECT_TRUE(automatic->isChecked());
}

TEST_F(Thickness, WavelengthListHasARowForEachExtremum) {
  const auto rows = [this] {
    const WaveListDlg dialog(state, printer);
    const auto* list = dialog.findChild<QTreeWidget*>(QStringLiteral("WaveList"));
    std::vector<std::string> texts;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < 4; ++column) {
        cells << list->topLevelItem(row)->text(column);
      }
      texts.push_back(cells.join(u'|').toStdString());
    }
    return texts;
  };
  EXPECT_TRUE(rows().empty());
  state.extrema.entries[0] = {{600.0, 4.25}, true};
  state.extrema.entries[1] = {{612.5, 3.5}, false};
  state.extrema.count = 2;
  EXPECT_EQ(rows(), (std::vector<std::string>{"1|P|600|4.2500", "2|V|613|3.5000"}));
}

TEST_F(Thickness, JumpTakesAWholeNumber) {
  for (const std::int16_t view : {std::int16_t{0}, std::int16_t{6}}) {
    state.display.view = view;
    JampWave dialog(state);
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("ｼﾞｬﾝﾌﾟ"));
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("Unit"))->text(),
              view == 6 ? QStringLiteral("[1/nm]") : QStringLiteral("[nm]"));
    auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("Wavelength"));
    EXPECT_EQ(dialog.Outcome(), QStringLiteral("CANCEL"));
    QTest::keyClicks(field, QStringLiteral("-6.5 x0 0e"));
    EXPECT_EQ(field->text(), QStringLiteral("6500"));
    QTest::keyClick(field, Qt::Key_Backspace);
    dialog.findChild<QPushButton*>(QStringLiteral("OK"))->click();
    EXPECT_EQ(dialog.Outcome(), QStringLiteral("OK"));
    EXPECT_EQ(dialog.Wavelength(), 650);
  }
}

}  // namespace
}  // namespace vexa

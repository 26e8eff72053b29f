// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>

#include "base/code_page.h"
#include "colour/stock_file.h"
#include "support/pdf_words.h"
#include "support/spectra.h"
#include "support/window_test.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_difference_window.h"
#include "views/colour/stock_window.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

using test::Shown;
using test::ShownMessage;

const ShownMessage kReadError{Message::kStockReadError,
                              {QStringLiteral("VEXA-KT 440-840 Ver3.21 Stock File")}};

class Stock : public test::WindowTest {
 protected:
  QWidget& Window() override { return window; }

  StockWindow window{session, messages, dialogs, std::make_shared<BackgroundPicture>(messages)};
};

TEST_F(Stock, SavesLoadsAndClears) {
  Press("StockSave");  // cancelled
  Press("StockLoad");
  (void)state.stock.StockAdd({.x = 0.3127, .y = 0.329, .Y = 4.5}, true);
  (void)state.stock.StockAdd({.x = 0.25, .y = 0.3, .Y = 5.0}, true);
  state.stock.Record({true, 4, false});
  window.Refresh();
  dialogs.save = SaveChoice{files.Path("点 1"), 1};
  Press("StockSave");
  EXPECT_EQ(dialogs.filter, "累積ﾃﾞｰﾀ･ﾌｧｲﾙ(*.stc)|*.stc|");
  const QByteArray content = files.Read("点 1.stc");
  EXPECT_EQ(content,
            "VEXA-KT 440-840 Ver3.21 Stock File\r\nTrue\r\n 4 \r\nFalse\r\n 2 \r\n"
            "0.312700,0.329000,4.500000\r\n0.250000,0.300000,5.000000\r\n");

  Press("StockClearOne");
  EXPECT_EQ(state.stock.Count, 1);
  messages.answers = {MessageResult::kNo};
  Press("StockSave");
  EXPECT_EQ(messages.Take().size(), 1U);
  EXPECT_EQ(files.Read("点 1.stc"), content) << "not replaced";
  Press("StockClearAll");
  EXPECT_EQ(state.stock.Count, 0);
  EXPECT_EQ(state.stock.P1[0], 0.0);

  int changes = 0;
  QObject::connect(&session, &Session::StockChanged, &window, [&changes] { ++changes; });
  dialogs.open = files.Write("old.stc", QByteArray(content).replace("3.21", "3.00"));
  Press("StockLoad");
  EXPECT_EQ(messages.Take(), Shown{});
  EXPECT_EQ(state.stock.Count, 2);
  EXPECT_EQ(state.stock.P3[1], 5.0);
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(Text("StockWindowCount").ends_with("2 / 100"));
  dialogs.save = SaveChoice{files.Path("missing/x.stc"), 1};
  Press("StockSave");
  EXPECT_EQ(messages.Take().at(0).id, Message::kWriteError);
}

TEST_F(Stock, AFaultyFileIsToldAndChangesNothing) {
  (void)state.stock.StockAdd({.x = 0.3}, true);
  dialogs.open = files.Write(
      "x.stc",
      "VEXA-KT 440-840 Ver3.21 Stock File\r\nTrue\r\n 1 \r\nTrue\r\n 3 \r\n1,2,3\r\n4,5,6\r\n7,");
  Press("StockLoad");
  EXPECT_EQ(messages.Take(), std::vector{kReadError});
  EXPECT_EQ(state.stock.Count, 1);
  EXPECT_EQ(state.stock.P1[0], 0.3);
}

// A flat spectrum but for a bump in the green.
void Fill(MeasurementSlot& slot, double level, double bump, const char* name) {
  slot.reflectance =
      test::SpectrumOf([&](int nm) { return level + (nm < 600 && nm > 520 ? bump : 0.0); });
  slot.info.sampleNumber = QString::fromUtf8(name);
  slot.valid = true;
}

class Difference : public test::ViewTest {
 protected:
  CurrentPrinter printer{state, messages, dialogs};
};

TEST_F(Difference, ComparesEveryOtherValidSlotWithTheStandard) {
  Fill(*state.Slot(2), 50.0, 10.0, "試料\tA");
  Fill(*state.Slot(4), 50.0, 10.0, "同じ");
  Fill(*state.Slot(7), 0.0, 0.0, "黒");
  Fill(*state.Slot(9), 60.0, 12.0, "明るい");
  ColourDifferenceWindow window(state, 4, printer, messages, dialogs);
  test::Click(window, "CopyTable");
  QStringList rows = QApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
  ASSERT_EQ(rows.size(), 8);
  dialogs.save = SaveChoice{files.Path("色差.csv")};
  test::Click(window, "SaveTable");
  EXPECT_EQ(CodePageDecoder().Decode(files.Read("色差.csv")),
            rows.join(QStringLiteral("\r\n")).replace(u'\t', u',') + QStringLiteral("\r\n"));
  dialogs.save = SaveChoice{files.Path("色差.pdf")};
  test::Click(window, "PrintTable");
  const QString printed = test::PdfPages(files.Path("色差.pdf")).join(QString());
  for (const QString& row : rows) {
    EXPECT_TRUE(printed.contains(QString(row).replace(u'\t', u' '))) << row.toStdString();
  }
  EXPECT_TRUE(rows.first().startsWith(QStringLiteral("基準\tMes4")));
  EXPECT_EQ(rows.mid(1, 3).join(u' '), QStringLiteral("測色値\t装置固有 光源\tA 視野\t2°"));
  rows = rows.mid(4);
  EXPECT_EQ(rows[0], QStringLiteral("ｽﾛｯﾄ\t試料No\tΔL*\tΔa*\tΔb*\tΔC*\tΔH*\tΔE*ab\tΔE00"));
  EXPECT_EQ(rows[1],
            QStringLiteral("Mes2\t試料 A\t0.000\t0.000\t0.000\t0.000\t0.000\t0.000\t0.000"));
  EXPECT_EQ(rows[2], QStringLiteral("Mes7\t黒\t-\t-\t-\t-\t-\t-\t-"));
  // 1.2 times the light: L* grows by (L* + 16) (1.2^(1/3) - 1) and C* by C* (1.2^(1/3) - 1).
  ColourResult colour;
  ASSERT_TRUE(CalcColour(state.Slot(4)->reflectance, state.colour, colour));
  const QStringList brighter = rows[3].split(u'\t');
  const double growth = std::cbrt(1.2) - 1.0;
  EXPECT_NEAR(brighter[2].toDouble(), (colour.L + 16.0) * growth, 6e-4);
  EXPECT_NEAR(brighter[5].toDouble(), colour.C * growth, 6e-4);
  EXPECT_EQ(std::abs(brighter[6].toDouble()), 0.0);

  auto* standard = window.findChild<QComboBox*>(QStringLiteral("StandardSlot"));
  EXPECT_EQ(standard->count(), 4);
  standard->setCurrentIndex(3);
  const auto* table = window.findChild<QTableWidget*>(QStringLiteral("DifferenceTable"));
  ASSERT_EQ(table->rowCount(), 3);
  EXPECT_EQ(table->item(1, 0)->text(), QStringLiteral("Mes4"));
  EXPECT_EQ(table->item(1, 2)->text().toDouble(), -brighter[2].toDouble());
}

// L* of an even reflectance R is 116 cbrt(R / 100) - 16.
TEST_F(Difference, ComparesTheCieColoursWhenTheyAreChosen) {
  Fill(*state.Slot(1), 18.0, 0.0, "灰");
  Fill(*state.Slot(2), 20.0, 0.0, "白");
  Fill(*state.Slot(3), 18.0, 9.0, "緑");
  Fill(*state.Slot(4), 0.0, 0.0, "黒");
  ColourDifferenceWindow window(state, 1, printer, messages, dialogs);
  const auto copied = [&window] {
    test::Click(window, "CopyTable");
    return QApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
  };
  auto& range = test::Child<QLabel>(window, "DifferenceRange");
  EXPECT_TRUE(range.isHidden());
  const QStringList own = copied();
  test::Child<QComboBox>(window, "DifferenceKind").setCurrentIndex(1);
  EXPECT_FALSE(range.isHidden());
  const QStringList cie = copied();
  const QString name = QStringLiteral("CIE (440 nm より下は外挿)");
  EXPECT_EQ(cie[1], QStringLiteral("測色値\t") + name);
  EXPECT_EQ(cie[5], QStringLiteral("Mes2\t白\t2.341\t0.000\t0.000\t0.000\t0.000\t2.341\t") +
                        cie[5].section(u'\t', -1));
  EXPECT_GT(
      std::abs(cie[6].section(u'\t', 3, 3).toDouble() - own[6].section(u'\t', 3, 3).toDouble()),
      1.0)
      << "of a green the two are different colours";
  EXPECT_EQ(cie[7], QStringLiteral("Mes4\t黒\t-\t-\t-\t-\t-\t-\t-"));
  dialogs.save = SaveChoice{files.Path("色差.csv")};
  test::Click(window, "SaveTable");
  EXPECT_EQ(CodePageDecoder().Decode(files.Read("色差.csv")),
            cie.join(QStringLiteral("\r\n")).replace(u'\t', u',') + QStringLiteral("\r\n"));
  dialogs.save = SaveChoice{files.Path("色差.pdf")};
  test::Click(window, "PrintTable");
  EXPECT_TRUE(test::PdfPages(files.Path("色差.pdf")).join(QString()).contains(name));
}

TEST_F(Difference, IsEmptyWithoutSlots) {
  const ColourDifferenceWindow window(state, 1, printer, messages, dialogs);
  EXPECT_EQ(window.findChild<QTableWidget*>()->rowCount(), 0);
}

}  // namespace
}  // namespace vexa

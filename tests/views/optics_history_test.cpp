// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAction>
#include <QPainter>
#include <QPointer>

#include "support/pdf_words.h"
#include "support/window_test.h"
#include "views/optics/history_plot.h"
#include "views/optics/optics_print.h"
#include "views/optics/thick_g_set_dlg.h"
#include "views/optics/thick_graph.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

using test::Child;
using test::Click;
using test::Shown;
using test::ShownMessage;

class History : public test::WindowTest {
 protected:
  void SetUp() override {
    state.thickness.enabled = true;
    state.Slot(1)->valid = true;
    state.Slot(1)->thickness.first.wavelengthNm = 700.0;
  }
  QWidget& Window() override { return window; }

  void Add(const std::vector<double>& thicknesses, bool physical = true) {
    for (const double thickness : thicknesses) {
      state.Slot(slot)->thickness.thicknessNm = thickness;
      state.Slot(slot)->thickness.physical = physical;
      Press("AddPoint");
    }
  }
  // Number of points, thickness at the cursor and its index, as shown.
  std::string Labels() {
    return Text("TotalCount") + ' ' + Text("Thickness") + ' ' + Text("DataIndex");
  }
  void Choose(const char* action) { Find<QAction>(action).trigger(); }
  QCPRange Scale() { return Find<HistoryPlot>("HistoryPlot").yAxis->range(); }

  CurrentPrinter printer{state, messages, dialogs};
  int slot = 1;  ///< the one selected
  ThickGraph window{session, messages, dialogs, printer, [this] { return slot; }};
};

TEST_F(History, GrowsToFiftyPointsAndNoFurther) {
  EXPECT_EQ(Labels(), "0 - -");
  Add({1510.25, 1630.0});
  EXPECT_EQ(Labels(), "2 1630.0 2");
  EXPECT_EQ(Scale(), QCPRange(1500.0, 1650.0));
  Add(std::vector<double>(48, 1600.0));
  EXPECT_TRUE(messages.Take().empty());
  Add({1700.0});
  EXPECT_EQ(messages.Take(), (Shown{{Message::kHistoryFull}}));
  EXPECT_EQ(Labels(), "50 1600.0 50");
}

TEST_F(History, KeepsPhysicalAndOpticalThicknessesApart) {
  Add({2400.0}, false);
  EXPECT_FALSE(state.thicknessHistory.physical);
  Add({1500.0});
  EXPECT_EQ(messages.Take().size(), 1U);
  EXPECT_EQ(state.thicknessHistory.count, 1);
  Choose("ClearAll");
  Add({1500.0});
  EXPECT_TRUE(state.thicknessHistory.physical);
}

TEST_F(History, AddsTheThicknessOfTheCurrentSlot) {
  const ShownMessage notSetUp{Message::kHistoryThicknessDisabled};
  const ShownMessage nothing{Message::kNoValidData};
  state.thickness.enabled = false;
  state.Slot(1)->valid = false;
  Press("AddPoint");
  EXPECT_EQ(messages.Take(), std::vector{notSetUp});
  state.thickness.enabled = true;
  Press("AddPoint");
  EXPECT_EQ(messages.Take(), std::vector{nothing});
  state.Slot(3)->valid = true;
  state.Slot(3)->thickness = {.first = {700.0, 4.0},
                              .second = {800.0, 4.0},
                              .thicknessNm = 2800.0,
                              .physical = false,
                              .extrema = {}};
  slot = 3;
  Press("AddPoint");
  EXPECT_EQ(Labels(), "1 2800.0 1");
  EXPECT_FALSE(state.thicknessHistory.physical) << "as it was computed, whatever is set now";
}

TEST_F(History, CursorStepsAtOnceAndRepeatsWhileTheButtonIsHeld) {
  window.show();
  Add({100.0, 200.0, 300.0, 400.0});
  auto* left = &Find<QAbstractButton>("CursorLeft");
  QTest::mouseClick(left, Qt::LeftButton);
  EXPECT_EQ(Labels(), "4 300.0 3");
  QTest::mousePress(left, Qt::LeftButton);
  EXPECT_EQ(Labels(), "4 200.0 2");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Labels() == "4 100.0 1"; }));
  QTest::mouseRelease(left, Qt::LeftButton);
  for (int i = 0; i < 5; ++i) {
    QTest::mouseClick(&Find<QAbstractButton>("CursorRight"), Qt::LeftButton);
  }
  EXPECT_EQ(Labels(), "4 400.0 4") << "the cursor stays on the points";
}

TEST_F(History, DeletesThePointAtTheCursor) {
  Press("DeletePoint");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kHistoryNoPoint}}));
  Add({100.0, 2000.0, 300.0});
  emit Find<QAbstractButton>("CursorLeft").pressed();
  Press("DeletePoint");
  EXPECT_EQ(Labels(), "2 300.0 2");
  EXPECT_EQ(Scale(), QCPRange(100.0, 300.0));
  Press("DeletePoint");
  EXPECT_EQ(Labels(), "1 100.0 1");
  Press("DeletePoint");
  EXPECT_EQ(Labels(), "0 - -");
}

TEST_F(History, ClearsAfterAQuestion) {
  Add({100.0, 200.0});
  messages.answers = {MessageResult::kCancel};
  Choose("ClearAll");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kHistoryClear}}));
  EXPECT_EQ(Labels(), "2 200.0 2");
  Choose("ClearAll");
  EXPECT_EQ(Labels(), "0 - -");
}

TEST_F(History, SaysOfWhichKindEachPointIs) {
  state.Slot(1)->doubts = {ThicknessDoubt::kEdge};
  Add({1500.0});
  state.Slot(1)->doubts.clear();
  state.Slot(1)->fit.emplace();
  state.Slot(1)->fit->outcome = FitOutcome::kOk;
  state.Slot(1)->fit->layers = {{1512.0, 1.0}};
  Add({1510.0});
  state.Slot(1)->thickness = {};
  Press("AddPoint");
  const auto kinds = [this] {
    return Text("PointKind") + ' ' + Text("PointFit") +
           (Find<QLabel>("PointDoubt").pixmap().isNull() ? "" : " !");
  };
  EXPECT_EQ(Labels() + ' ' + kinds(), "3 1512.0 3 膜厚ﾌｨｯﾄ -");
  emit Find<QAbstractButton>("CursorLeft").pressed();
  EXPECT_EQ(kinds(), "物理膜厚 1512.0");
  emit Find<QAbstractButton>("CursorLeft").pressed();
  EXPECT_EQ(kinds(), "物理膜厚 - !");
  Press("DeletePoint");
  EXPECT_EQ(kinds(), "物理膜厚 1512.0") << "what is known of a point moves with it";
}

TEST_F(History, APointOffTheScaleKeepsTheScale) {
  Add({1510.0, 1630.0, 20001.0});
  EXPECT_EQ(messages.Take(), (Shown{{Message::kHistoryScaleFault}}));
  EXPECT_EQ(Scale(), QCPRange(1500.0, 1650.0));
}

TEST_F(History, IsSaved) {
  Add({1500.0, 1512.25});
  dialogs.save = SaveChoice{files.Path("履歴"), 1};
  Choose("SaveAs");
  EXPECT_EQ(dialogs.filter, "Data File (*.thk)|*.thk");
  EXPECT_EQ(files.Read("履歴.thk"),
            "VEXA-KT 440-840 Ver 3.21 Thickness File\r\n 2\r\n[nm]\r\n 1500\r\n 1512.25\r\n");
  Add({1600.0});
  messages.answers = {MessageResult::kCancel};
  Choose("SaveAs");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kReplaceFileOrCancel}}));
  EXPECT_TRUE(files.Read("履歴.thk").endsWith("1512.25\r\n"));
  dialogs.save = SaveChoice{files.Path("missing/x"), 1};
  Choose("SaveAs");
  EXPECT_EQ(messages.Take(), (Shown{{Message::kHistoryWriteError}}));
}

TEST_F(History, ScaleDialogKeepsItsLimits) {
  const struct {
    const char* minimum;
    const char* maximum;
    bool accepted;
  } cases[] = {
      {"0", "99", false},       {"0", "100", true},   {"0", "99.5", true},   {"0", "99.4", false},
      {"-1", "500", false},     {"0", "20000", true}, {"0", "20001", false}, {"500", "400", false},
      {"19900", "20000", true}, {"", "500", false},   {"1E3", "2E3", true},
  };
  for (const auto& c : cases) {
    ThickGSetDlg dialog({0.0, 100.0}, true, messages);
    dialog.show();
    EXPECT_FALSE(Child<QLineEdit>(dialog, "Maximum").isEnabled());
    Click(dialog, "AutoScale");
    EXPECT_EQ(Child<QLineEdit>(dialog, "Maximum").selectedText(), QStringLiteral("100"));
    test::Type(dialog, "Maximum", c.maximum);
    test::Type(dialog, "Minimum", c.minimum);
    Click(dialog, "OK");
    EXPECT_EQ(dialog.Outcome(), c.accepted ? QStringLiteral("OK") : QStringLiteral("CANCEL"))
        << c.minimum << ".." << c.maximum;
    EXPECT_EQ(dialog.isVisible(), !c.accepted);
    const ShownMessage refusal{Message::kHistoryScaleOutOfRange};
    EXPECT_EQ(messages.Take(), c.accepted ? Shown{} : std::vector{refusal});
  }
}

TEST_F(History, TakesTheScaleOfTheDialog) {
  Add({1510.0, 1630.0});
  const auto answer = [this](const char* button) {
    Choose("GraphSettings");
    const QPointer<ThickGSetDlg> dialog = window.findChild<ThickGSetDlg*>();
    Child<QAbstractButton>(*dialog, "AutoScale").setChecked(false);
    Child<QLineEdit>(*dialog, "Maximum").setText(QStringLiteral("3000"));
    Click(*dialog, button);
    EXPECT_TRUE(QTest::qWaitFor([&dialog] { return dialog.isNull(); }));
  };
  answer("Cancel");
  EXPECT_EQ(Scale(), QCPRange(1500.0, 1650.0));
  answer("OK");
  EXPECT_EQ(Scale(), QCPRange(1500.0, 3000.0));
  Add({900.0});
  EXPECT_EQ(Scale(), QCPRange(1500.0, 3000.0)) << "a scale by hand stays";
}

TEST_F(History, PagesFitOntoPaper) {
  ExtremumList list;
  list.count = ExtremumList::kLimit - 1;
  Add(std::vector<double>(50, 1600.0));
  const std::function<void(QPainter&, const QRectF&)> pages[] = {
      [this](QPainter& painter, const QRectF& page) {
        PaintHistoryPage(painter, page, state.thicknessHistory, {1500.0, 1700.0});
      },
      [&list](QPainter& painter, const QRectF& page) {
        PaintWaveListPage(painter, page, QStringLiteral("Mes1  ") + QString(90, u'長'),
                          QStringLiteral("縞"), list);
      }};
  for (const auto& paint : pages) {
    EXPECT_TRUE(WritePdf(files.Path("頁.pdf"), {}, PageLayoutOf({}), SinglePage(paint)));
    const std::vector<QRectF> words = test::PdfWordPlaces(files.Path("頁.pdf")).at(0);
    EXPECT_GT(words.size(), 100U);
    for (const QRectF& word : words) {
      EXPECT_TRUE(QRectF(0.05, 0.03, 0.9, 0.94).contains(word)) << word.x() << ' ' << word.y();
    }
  }
}

}  // namespace
}  // namespace vexa

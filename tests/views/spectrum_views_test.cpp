// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include "support/spectra.h"
#include "support/window_test.h"
#include "views/colour/background_picture.h"
#include "views/common/plot_export.h"
#include "views/graph/light_graph.h"
#include "views/graph/main_views.h"
#include "views/graph/reflectance_graph.h"
#include "views/graph/spectrum_table.h"

namespace vexa {
namespace {

class SpectrumViews : public test::ViewTest {
 protected:
  SpectrumViews() {
    state.Slot(2)->reflectance =
        test::SpectrumOf([](int nm) { return 0.01 * std::abs(nm - 600) + 1.0; });
    state.Slot(2)->valid = true;
    state.Slot(2)->info.sampleNumber = QStringLiteral("S-2");
  }
};

TEST_F(SpectrumViews, TableFollowsRangeAndStepAndIsCopiedWithItsHeadings) {
  state.display.shortestNm = 598.0;
  state.display.longestNm = 605.0;
  state.display.textStepNm = 3;
  SpectrumTable table;
  table.Show(ReflectanceCurves(state, 2), state.display, u"##0.000");
  EXPECT_EQ(table.SelectedText(), QString());
  table.selectAll();
  table.actions().constFirst()->trigger();
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral("波長 [nm]\t2 S-2\n598\t1.020\n601\t1.010\n604\t1.040\n"));
}

TEST_F(SpectrumViews, LightStandsAtItsCalibratedWavelength) {
  state.instrument.calibrationShiftNm = 4;
  state.reference[504] = 900.0;
  const std::vector<SpectrumCurve> curves = LightCurves(state);
  ASSERT_EQ(curves.size(), 1U) << "nothing else was measured";
  EXPECT_EQ(curves[0].values[500], 900.0);
  LightGraph graph;
  graph.Show(state, 0);
  EXPECT_GT(graph.yAxis->range().upper, 4094.0);
}

TEST_F(SpectrumViews, MinimumIsThatOfTheShownRange) {
  ReflectanceGraph graph;
  graph.Show(state, 2);
  auto* text = qobject_cast<QCPItemText*>(graph.item(graph.itemCount() - 1));
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(), QStringLiteral("Min 600 nm  1.000 %"));
  graph.xAxis->setRange(700.0, 800.0);
  EXPECT_EQ(text->text(), QStringLiteral("Min 700 nm  2.000 %"));
  graph.Show(state, 1);
  EXPECT_FALSE(text->visible()) << "the selected slot is empty";
}

TEST_F(SpectrumViews, AllGraphsShareTheCursor) {
  MainViews views(state, messages, dialogs, std::make_shared<BackgroundPicture>(messages));
  views.resize(900, 600);
  views.show();
  for (const int view : {0, 6, 3, 2, 99, -1}) {
    state.display.view = static_cast<std::int16_t>(view);
    views.Show(2);
    const int before = views.CursorNm();
    QTest::mouseClick(&test::Child<QWidget>(views, "CursorUp"), Qt::LeftButton);
    EXPECT_EQ(views.CursorNm(), before + 1) << view;
  }
  views.MoveCursor(610);
  EXPECT_TRUE(test::Child<QLabel>(views, "CursorValue1").text().endsWith(u" 2: 1.100"));
}

TEST_F(SpectrumViews, PicturesAreSavedInTheKindOfTheirEnding) {
  ReflectanceGraph graph;
  graph.resize(600, 400);
  graph.Show(state, 2);
  AddExport(graph, messages, dialogs);
  const std::pair<const char*, const char*> kinds[] = {
      {"図.png", "\x89PNG"}, {"図.svg", "<?xml"}, {"図.pdf", "%PDF-"}};
  for (const auto& [name, beginning] : kinds) {
    dialogs.save = SaveChoice{files.Path(name)};
    graph.actions().constLast()->trigger();
    EXPECT_TRUE(files.Read(name).startsWith(beginning)) << name;
  }
  dialogs.save = SaveChoice{QStringLiteral("/nowhere/a.png")};
  graph.actions().constLast()->trigger();
  EXPECT_EQ(messages.Take().size(), 1U);
}

}  // namespace
}  // namespace vexa

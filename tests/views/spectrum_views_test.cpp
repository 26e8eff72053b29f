// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include "support/spectra.h"
#include "support/window_test.h"
#include "views/colour/background_picture.h"
#include "views/common/axis_scale.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"
#include "views/common/slot_style.h"
#include "views/graph/index_graph.h"
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

TEST_F(SpectrumViews, IndexOfASlotIsItsOwn) {
  for (const int number : {2, 3, 4}) {
    state.Slot(number)->valid = true;
    state.Slot(number)->reflectance = test::Flat(number == 4 ? 100.0 : 4.0);
  }
  state.Slot(2)->filmIndex = test::Flat(1.6);
  state.Slot(3)->filmIndex = test::Flat(1.7);
  state.filmIndex = test::Flat(1.48);
  state.substrateIndex = test::Flat(1.8);
  const struct {
    std::int16_t coatKind;
    int selected;
    std::vector<double> at600nm;
  } cases[] = {
      // The index of 4 % is 1.5, that of 100 % is none; film indices follow.
      {DispersionKind::kFixedValue, 4, {1.5, 1.5, 1.48, 1.8}},
      {DispersionKind::kSubstrate, 2, {1.5, 1.5, 1.6, 1.8}},
      {DispersionKind::kSubstrate, 3, {1.5, 1.5, 1.7, 1.8}},
      {DispersionKind::kSubstrate, 4, {1.5, 1.5, 1.8}},
      {DispersionKind::kSubstrate, 0, {1.5, 1.5, 1.6, 1.7, 1.8}},
  };
  for (const auto& c : cases) {
    state.thickness.coat.kind = c.coatKind;
    IndexGraph graph;
    graph.Show(state, c.selected);
    std::vector<double> shown;
    for (const SpectrumCurve& curve : graph.Curves()) {
      shown.push_back(curve.values[600]);
      EXPECT_TRUE(graph.yAxis->range().contains(shown.back())) << curve.name.toStdString();
    }
    ASSERT_EQ(shown.size(), c.at600nm.size()) << c.selected;
    for (std::size_t i = 0; i < shown.size(); ++i) {
      EXPECT_DOUBLE_EQ(shown[i], c.at600nm[i]) << c.selected;
    }
    EXPECT_EQ(graph.Curves().front().pen.color(), SlotColour(2));
    EXPECT_EQ(graph.Curves().front().name, QStringLiteral("2 S-2"));
  }
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

TEST_F(SpectrumViews, LegendTellsLongNamesApartAtEverySize) {
  for (int number = 1; number <= kSlotCount; ++number) {
    *state.Slot(number) = *state.Slot(2);
    state.Slot(number)->info.sampleNumber = QStringLiteral("ﾛｯﾄ2026-03 位置 %1 中央").arg(number);
  }
  ReflectanceGraph graph;
  graph.Show(state, 1);
  for (const auto& [width, whole] : {std::pair{1400, true}, {420, false}}) {
    graph.toPixmap(width, 500);
    QSet<QString> names;
    for (int i = 0; i < kSlotCount; ++i) {
      const QString name = graph.graph(i)->name();
      names << name;
      EXPECT_EQ(name == graph.Curves()[static_cast<std::size_t>(i)].name, whole);
    }
    EXPECT_EQ(names.size(), kSlotCount) << width;
    EXPECT_LE(graph.legend->outerRect().right(), width);
    EXPECT_LT(graph.legend->outerRect().height(), 120);
  }
}

TEST_F(SpectrumViews, LabelsOfTheAxesStandApart) {
  ReflectanceGraph graph;
  graph.Show(state, 2);
  graph.setViewport(QRect(0, 0, 600, 400));
  graph.replot();
  for (const double interval : {5.0, 20.0, 100.0}) {
    SetTicks(*graph.xAxis, interval);
    QVector<double> ticks;
    QVector<double> minor;
    QVector<QString> labels;
    graph.xAxis->ticker()->generate(graph.xAxis->range(), QLocale::c(), u'g', 6, ticks, &minor,
                                    &labels);
    EXPECT_EQ(minor.isEmpty(), interval == 5.0);
    double end = -1.0;
    int shown = 0;
    for (qsizetype i = 0; i < ticks.size(); ++i) {
      const double half = graph.fontMetrics().horizontalAdvance(labels[i]) / 2.0;
      const double place = graph.xAxis->coordToPixel(ticks[i]);
      if (!labels[i].isEmpty()) {
        EXPECT_GT(place - half, end) << interval << ' ' << ticks[i];
        end = place + half;
        ++shown;
      }
    }
    EXPECT_EQ(ticks.size(), static_cast<qsizetype>(std::floor(840.0 / interval) -
                                                   std::ceil(440.0 / interval) + 1.0));
    EXPECT_GE(shown, 4) << interval;
  }
}

TEST_F(SpectrumViews, TheViewFollowsACursorThatLeavesIt) {
  state.display.shortestNm = 500.0;
  state.display.longestNm = 600.0;
  for (const Abscissa abscissa : {Abscissa::kWavelength, Abscissa::kReciprocal}) {
    ReflectanceGraph graph(abscissa);
    graph.Show(state, 2);
    const QCPRange full = graph.xAxis->range();
    graph.SetCursor(700);
    graph.MoveCursor(510);
    EXPECT_EQ(graph.xAxis->range(), full);
    graph.MoveCursor(700);
    EXPECT_TRUE(graph.xAxis->range().contains(AbscissaOf(abscissa, 700.0)));
    EXPECT_NEAR(graph.xAxis->range().size(), full.size(), 1e-9);
    const QCPRange widest(AbscissaOf(abscissa, 440.0), AbscissaOf(abscissa, 840.0));
    for (const int nm : {9999, 0}) {
      graph.MoveCursor(nm);
      EXPECT_TRUE(graph.xAxis->range().contains(AbscissaOf(abscissa, graph.CursorNm()))) << nm;
      for (const Qt::Key aside : {Qt::Key_Left, Qt::Key_Right}) {
        const QCPRange shown = graph.xAxis->range();
        EXPECT_EQ(shown, shown.bounded(widest.lower, widest.upper)) << nm;
        QTest::keyClick(&graph, aside, Qt::ControlModifier);
      }
    }
  }
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
  AddExport(graph, messages, dialogs, [this] { return ProposedName(state); });
  const QByteArray picture = PlotPicture(graph, QStringLiteral("png"));
  graph.MoveCursor(610);
  EXPECT_EQ(PlotPicture(graph, QStringLiteral("png")), picture) << "the cursor is left out";
  const std::pair<const char*, const char*> kinds[] = {
      {"図.png", "\x89PNG"}, {"図.svg", "<?xml"}, {"図.pdf", "%PDF-"}};
  for (const auto& [name, beginning] : kinds) {
    dialogs.save = SaveChoice{files.Path(name)};
    graph.actions().constLast()->trigger();
    EXPECT_TRUE(files.Read(name).startsWith(beginning)) << name;
  }
  EXPECT_EQ(dialogs.proposed, "S-2");
  dialogs.save = SaveChoice{QStringLiteral("/nowhere/a.png")};
  graph.actions().constLast()->trigger();
  EXPECT_EQ(messages.Take().size(), 1U);
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "standards/reflectance_band.h"
#include "views/graph/reflectance_graph.h"

namespace vexa {
namespace {

StandardSet Band(double upper) {
  StandardSet standard;
  standard.useReflectance = true;
  standard.wavelengths = {440, 640, 840};
  for (std::size_t k = 0; k < 3; ++k) {
    standard.conditions[k] = {true, upper, 0.5};
  }
  return standard;
}

class GraphWithBand : public testing::Test {
 protected:
  GraphWithBand() {
    state.Slot(1)->valid = true;
    state.Slot(1)->reflectance[550] = 1.0;
    graph.setViewport({0, 0, 600, 400});
  }

  // Whether a mid-height pixel at the middle of the wavelengths is paper.
  bool IsPaper() {
    graph.xAxis->setRange(440.0, 840.0);
    graph.yAxis->setRange(0.0, 4.0);
    graph.replot();
    const QPoint point(static_cast<int>(graph.xAxis->coordToPixel(611.0)),
                       static_cast<int>(graph.yAxis->coordToPixel(1.3)));
    const QImage picture = graph.toPixmap(600, 400).toImage();
    return picture.pixelColor(point) == Qt::white;
  }

  VEXATYPE state;
  ReflectanceGraph graph;
};

TEST_F(GraphWithBand, DrawsTheLimitsWithoutTouchingTheLegend) {
  graph.Show(state, 1);
  EXPECT_TRUE(IsPaper());
  graph.ShowBand(ReflectanceBand(Band(2.0)));
  EXPECT_EQ(graph.legend->itemCount(), 1);
  EXPECT_FALSE(IsPaper());
  graph.Show(state, 1);
  EXPECT_EQ(graph.legend->itemCount(), 1);
  const int drawn = graph.graphCount();
  graph.ShowBand(ReflectanceBand(Band(2.5)));
  EXPECT_EQ(graph.graphCount(), drawn) << "the band before is gone";
  graph.ShowBand({});
  EXPECT_TRUE(IsPaper());
}

TEST_F(GraphWithBand, AnyStandardCanBeDrawn) {
  for (const std::int16_t nm : {std::int16_t{550}, std::int16_t{900}, std::int16_t{-32768}}) {
    StandardSet standard = Band(1e308);
    standard.conditions[2].lower = -1e308;
    standard.wavelengths[1] = nm;
    graph.ShowBand(ReflectanceBand(standard));
    standard.conditions[1].enabled = false;
    standard.wavelengths[0] = nm;
    graph.ShowBand(ReflectanceBand(standard));
    graph.replot();
  }
}

}  // namespace
}  // namespace vexa

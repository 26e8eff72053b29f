// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/chromaticity_diagram.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QTest>
#include <cmath>
#include <map>

#include "support/spectra.h"
#include "support/window_test.h"
#include "views/common/slot_style.h"

namespace vexa {
namespace {

using test::ShownMessage;

const ShownMessage kQuestion{Message::kAbortDiagram};

class Diagram : public test::ViewTest {
 protected:
  std::map<double, std::string> Labels(const QCPAxis* axis) {
    std::map<double, std::string> labels;
    const auto ticker = axis->ticker().dynamicCast<QCPAxisTickerText>();
    for (const auto& [at, text] : ticker->ticks().toStdMap()) {
      if (!text.isEmpty()) {
        labels[at] = text.toStdString();
      }
    }
    return labels;
  }

  // Turns the event loop without the pauses of a wait: each turn adds few pixels.
  bool Complete() {
    for (const QDeadlineTimer end(10000); !picture->IsComplete() && !end.hasExpired();) {
      QApplication::processEvents();
    }
    return picture->IsComplete();
  }

  QColor PixelAt(double a, double b) {
    diagram.resize(300, 300);
    const QImage image = diagram.toPixmap(300, 300).toImage();
    return image.pixelColor(static_cast<int>(diagram.xAxis->coordToPixel(a)),
                            static_cast<int>(diagram.yAxis->coordToPixel(b)));
  }

  std::shared_ptr<BackgroundPicture> picture = std::make_shared<BackgroundPicture>(messages);
  ChromaticityDiagram diagram{picture};
};

TEST_F(Diagram, AxesAreLabelledByModeAndScale) {
  using Texts = std::map<double, std::string>;
  struct Case {
    bool xyMode;
    std::int16_t labScale;
    Texts x;
    Texts y;
  };
  const Case cases[] = {
      {true, 0, {{0, "0"}, {0.4, "x"}, {0.8, "0.8"}}, {{0.4, "y"}, {0.8, "0.8"}}},
      {false, 0, {{-10, "-10"}, {0, "a*"}, {10, "10"}}, {{-10, "-10"}, {0, "b*"}}},
      {false, 1, {{-20, "-20"}, {0, "a*"}, {20, "20"}}, {{-20, "-20"}, {0, "b*"}}},
      {false, 2, {{-40, "-40"}, {0, "a*"}, {40, "40"}}, {{-40, "-40"}, {0, "b*"}}},
      {false, 7, {{-40, "-40"}, {0, "a*"}, {40, "40"}}, {{-40, "-40"}, {0, "b*"}}},
  };
  for (const Case& c : cases) {
    state.display.xyMode = c.xyMode;
    state.display.labScale = c.labScale;
    diagram.ShowSlots(state, 1);
    EXPECT_EQ(Labels(diagram.xAxis), c.x);
    EXPECT_EQ(Labels(diagram.yAxis), c.y);
    EXPECT_EQ(diagram.xAxis->range().lower, c.x.begin()->first);
    EXPECT_EQ(diagram.yAxis->range().upper, c.x.rbegin()->first);
  }
}

TEST_F(Diagram, ShowsEitherColourAndSaysWhich) {
  MeasurementSlot& slot = *state.Slot(2);
  slot.valid = true;
  slot.reflectance = test::Flat(50.0);
  slot.colour = {.a = 7.0, .b = 8.0, .x = 0.1, .y = 0.2};
  state.Slot(3)->valid = true;  // black
  state.accumulate = true;
  state.standard.chroma = {true, 35.0, 0.0};
  const auto text = [this] {
    for (int i = 0; i < diagram.itemCount(); ++i) {
      if (const auto* item = qobject_cast<QCPItemText*>(diagram.item(i))) {
        return item->text().toStdString();
      }
    }
    return std::string();
  };
  const auto isRed = [this] {
    const QColor colour = PixelAt(0, -35);
    return colour.red() > colour.green() + 40;
  };
  // The white point of illuminant A is that of an even reflectance.
  const struct {
    ColourKind kind;
    bool named;
    bool xyMode;
    QPointF at;
    double within;
    const char* axis;
    const char* text;
  } cases[] = {
      {ColourKind::kInstrument, false, true, {0.1, 0.2}, 0.0, "x", "A / 2°"},
      {ColourKind::kInstrument, true, false, {7.0, 8.0}, 0.0, "a*", "装置固有  A / 2°"},
      {ColourKind::kCie,
       true,
       true,
       {0.44757, 0.40745},
       2e-5,
       "x (CIE)",
       "CIE  A / 2°\n440 nm より下は外挿"},
      {ColourKind::kCie,
       true,
       false,
       {0.0, 0.0},
       1e-9,
       "a* (CIE)",
       "CIE  A / 2°\n440 nm より下は外挿"},
  };
  for (const auto& c : cases) {
    state.display.xyMode = c.xyMode;
    state.stock.Record(state.ColourConditions());
    state.stock.RemoveAll();
    (void)state.stock.StockAdd({.L = 1.0, .x = 0.3, .y = 0.3}, c.xyMode);
    diagram.SetKind(c.kind, c.named);
    diagram.ShowSlots(state, 2);
    ASSERT_EQ(diagram.Marks().Slots().size(), 1U);
    EXPECT_NEAR(diagram.Marks().Slots()[0].at.x(), c.at.x(), c.within);
    EXPECT_NEAR(diagram.Marks().Slots()[0].at.y(), c.at.y(), c.within);
    EXPECT_EQ(Labels(diagram.xAxis)[c.xyMode ? 0.4 : 0.0], c.axis);
    EXPECT_EQ(text(), c.text);
    const bool own = c.kind == ColourKind::kInstrument;
    EXPECT_EQ(isRed(), own && !c.xyMode) << "standards are for the own values";
    EXPECT_EQ(diagram.graph(0)->dataCount(), own ? 1 : 0) << "so is the accumulation";
  }
}

TEST_F(Diagram, ASlotOutsideTheAxesIsAnArrowAtTheirBorder) {
  state.display.xyMode = false;
  state.display.labScale = 2;
  state.Slot(3)->valid = true;
  for (const QPointF& outside : {QPointF(0.0, 43.19), QPointF(-90.0, 0.0), QPointF(1e9, -1e9)}) {
    state.Slot(3)->colour = {.a = outside.x(), .b = outside.y(), .x = 0.3, .y = 0.3};
    diagram.ShowSlots(state, 3);
    const double share = 38.0 / std::max(std::abs(outside.x()), std::abs(outside.y()));
    EXPECT_EQ(PixelAt(share * outside.x(), share * outside.y()), SlotColour(3)) << outside.x();
  }
}

TEST_F(Diagram, ToleranceIsDrawnWhereTheGroupIsOn) {
  state.display.xyMode = false;
  const auto isRed = [this](double a, double b) {
    diagram.ShowSlots(state, 1);
    const QColor colour = PixelAt(a, b);
    return colour.red() > colour.green() + 40;
  };
  const double along30 = 25.0 * std::sqrt(0.75);
  EXPECT_FALSE(isRed(0, -35) || isRed(0, -15) || isRed(along30, 12.5));
  state.standard.chroma = {true, 35.0, -15.0};
  EXPECT_TRUE(isRed(0, -35) && isRed(0, -15)) << "the radii are absolute values";
  EXPECT_FALSE(isRed(along30, 12.5));
  state.standard.hueAngle = {true, 30.0, 200.0};
  EXPECT_TRUE(isRed(along30, 12.5));
  state.standard.chroma = {true, 1e300, 1e300};
  EXPECT_FALSE(isRed(0, -35));
}

TEST_F(Diagram, BackgroundIsBuiltInTurnsOfTheEventLoop) {
  diagram.show();
  ASSERT_TRUE(picture->IsBuilding());
  ASSERT_TRUE(Complete());
  EXPECT_FALSE(picture->IsBuilding());
  DiagramBackground reference;
  while (reference.Step(1000)) {
  }
  int opaque = 0;
  for (int row = 0; row < picture->Image().height(); ++row) {
    for (int column = 0; column < picture->Image().width(); ++column) {
      opaque += qAlpha(picture->Image().pixel(column, row)) == 255 ? 1 : 0;
    }
  }
  EXPECT_EQ(opaque, static_cast<int>(reference.Points().size())) << "no pixel hides another";
  // x = 0.3, y = 0.3 at a luminance of 75: R = 6.0405 * 75 - 1.6839 * 75 - 0.9115 * 100 is above
  // 255; G = -3.119 * 75 + 6.3182 * 75 - 0.0895 * 100 = 230.99; B is above 255.
  const QColor colour = picture->Image().pixelColor(150, picture->Image().height() - 1 - 150);
  EXPECT_EQ(colour.red(), 236);
  EXPECT_NEAR(colour.green(), 231, 1);
  EXPECT_EQ(colour.blue(), 255);
  EXPECT_EQ(messages.Take().size(), 0U);

  ChromaticityDiagram second(picture);
  second.show();
  EXPECT_FALSE(picture->IsBuilding()) << "kept";
}

TEST_F(Diagram, EscOrAClickAsksWhetherToStopTheBackground) {
  diagram.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&diagram));
  ASSERT_FALSE(picture->IsComplete()) << "too fast for this test";
  const auto stop = [this](bool click) {
    if (click) {
      QTest::mouseClick(&diagram, Qt::LeftButton);
    } else {
      QTest::keyClick(&diagram, Qt::Key_Escape);
    }
  };
  for (const MessageResult answer : {MessageResult::kCancel, MessageResult::kOk}) {
    for (const bool click : {false, true}) {
      picture->Request();
      messages.answers = {answer};
      stop(click);
      test::Shown shown;
      ASSERT_TRUE(QTest::qWaitFor([&] {
        shown = messages.Take();
        return !shown.empty();
      }));
      EXPECT_EQ(shown, std::vector{kQuestion});
      EXPECT_EQ(picture->IsBuilding(), answer != MessageResult::kOk);
      EXPECT_FALSE(picture->IsComplete());
    }
  }
  stop(false);
  stop(true);
  picture->Request();
  ASSERT_TRUE(Complete());
  EXPECT_EQ(messages.Take().size(), 0U) << "nothing to stop, nothing to ask";
}

}  // namespace
}  // namespace vexa

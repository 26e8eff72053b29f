// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_panel.h"

#include <gtest/gtest.h>

#include "support/spectra.h"
#include "support/window_test.h"
#include "views/colour/background_picture.h"
#include "views/colour/chromaticity_diagram.h"

namespace vexa {
namespace {

using test::Shown;
using test::ShownMessage;

class Panel : public test::WindowTest {
 protected:
  QWidget& Window() override { return panel; }

  ColourPanel panel{session, messages, dialogs};
};

TEST_F(Panel, ShowsTheColourOfTheSelectedSlot) {
  const QByteArray names =
      "Coordinate1Caption Coordinate1 Coordinate2Caption Coordinate2 Coordinate3Caption "
      "Coordinate3 Chroma Hue AverageReflectance LuminousReflectance Observer Illuminant";
  struct Case {
    bool xyMode;
    int slot;
    std::int16_t illuminant;
    bool observer2Deg;
    const char* texts;
  };
  const Case cases[] = {
      {true, 3, 1, true, "x :|0.3127|y :|0.3290|Y :|4.26|1.235|359.999|4.1|4.256|2|A"},
      {false, 3, 4, false, "a :|-0.5000|b :|12.3457|L :|24.50|1.235|359.999|4.1|4.256|10|D65"},
      {true, 4, 2, true, "x :|-|y :|-|Y :|-|-|-|-|-|2|B"},
      {true, 5, 2, true, "x :|-|y :|-|Y :|-|-|-|0.5|-|2|B"},
  };
  state.Slot(5)->valid = true;
  state.Slot(5)->colour.Rm = 0.5;  // a mean, but no colour
  state.Slot(3)->valid = true;
  state.Slot(3)->colour = {.L = 24.5,
                           .a = -0.5,
                           .b = 12.34567,
                           .x = 0.3127,
                           .y = 0.329,
                           .C = 1.2346,
                           .h = 359.9994,
                           .Rm = 4.1,
                           .Y = 4.2561};
  for (const Case& c : cases) {
    state.display.xyMode = c.xyMode;
    state.colour.illuminant = c.illuminant;
    state.colour.observer2Deg = c.observer2Deg;
    panel.Show(c.slot);
    std::string shown;
    for (const QByteArray& name : names.split(' ')) {
      shown += (shown.empty() ? "" : "|") + Text(name);
    }
    EXPECT_EQ(shown, c.texts) << "slot " << c.slot;
  }
}

// x, y and Y of an even 20 % are those of illuminant A and 20; L* is 116 cbrt(0.2) - 16.
TEST_F(Panel, TheCieColumnStandsBesideTheOwnValues) {
  const QByteArray own = "Coordinate1 Coordinate2 Coordinate3 Chroma Hue LuminousReflectance";
  const QByteArray cie =
      "CieCoordinate1 CieCoordinate2 CieCoordinate3 CieChroma CieHue CieAverageReflectance "
      "CieLuminousReflectance CieRv CieSpread";
  const auto shown = [this](const QByteArray& names) {
    std::string texts;
    for (const QByteArray& name : names.split(' ')) {
      texts += (texts.empty() ? "" : "|") + Text(name);
    }
    return texts;
  };
  state.Slot(2)->valid = true;
  state.Slot(2)->reflectance = test::Flat(20.0);
  state.Slot(2)->colour = {.L = 1.0, .a = 2.0, .b = 3.0, .x = 0.1, .y = 0.2, .C = 4.0, .Y = 5.0};
  state.Slot(3)->valid = true;   // black
  state.display.xyMode = false;  // no background that grows
  panel.resize(panel.width(), 900);
  panel.show();
  const auto picture = [this] {
    QApplication::processEvents();
    return panel.grab().toImage();
  };
  panel.Show(2);
  const QImage before = picture();
  for (const bool on : {true, false, true}) {
    panel.ShowCie(on);
    EXPECT_EQ(panel.findChild<QLabel*>(QStringLiteral("CieRv")) != nullptr, on);
    EXPECT_EQ(picture() == before, !on) << "without it the panel is as it was";
  }
  EXPECT_EQ(Text("InstrumentHeading") + "|" + Text("CieHeading"), "装置固有|CIE");
  EXPECT_EQ(Text("CieRange"), "440 nm より下は外挿");
  const struct {
    bool xyMode;
    int slot;
    const char* own;
    const char* cie;
  } cases[] = {
      {true, 2, "0.1000|0.2000|5.00|4.000|0.000|5.0",
       "0.4476|0.4074|20.0|0.000|-|-|20.0|20.0|0.000"},
      {false, 2, "2.0000|3.0000|1.00|4.000|0.000|5.0",
       "0.0000|0.0000|51.84|0.000|-|-|20.0|20.0|0.000"},
      {true, 3, "-|-|-|-|-|-", "-|-|0.0|0.000|-|-|0.0|0.0|0.000"},
      {true, 4, "-|-|-|-|-|-", "-|-|-|-|-|-|-|-|-"},
  };
  for (const auto& c : cases) {
    state.display.xyMode = c.xyMode;
    panel.Show(c.slot);
    EXPECT_EQ(shown(own), c.own);
    EXPECT_EQ(shown(cie), c.cie);
  }
  state.display.xyMode = true;
  state.colour = {4, false, 440, 840};
  panel.Show(2);
  EXPECT_EQ(Text("CieCoordinate1") + Text("CieCoordinate2"), "0.31380.3310") << "D65, 10 degrees";
}

TEST_F(Panel, AsksWhenTheStockWasTakenUnderOtherConditions) {
  const ShownMessage question{Message::kClearStock};
  struct Case {
    int points;
    StockConditions taken;
    bool asked;
    MessageResult answer;
    bool checked;
    int pointsLeft;
  };
  const StockConditions now{false, 4, true};
  const Case cases[] = {
      {2, now, false, MessageResult::kOk, true, 2},
      {0, {true, 1, false}, false, MessageResult::kOk, true, 0},
      {2, {true, 4, true}, true, MessageResult::kOk, true, 0},
      {2, {false, 3, true}, true, MessageResult::kCancel, false, 2},
      {2, {false, 4, false}, true, MessageResult::kCancel, false, 2},
  };
  state.display.xyMode = now.xyMode;
  state.colour.illuminant = now.illuminant;
  state.colour.observer2Deg = now.observer2Deg;
  for (const Case& c : cases) {
    state.stock = {};
    state.stock.Record(c.taken);
    for (int i = 0; i < c.points; ++i) {
      (void)state.stock.StockAdd({.L = 50.0, .a = 1.0}, false);
    }
    state.accumulate = false;
    panel.Show(1);
    messages.answers = {c.answer};
    Press("AccumulateChk");
    EXPECT_EQ(messages.Take(), c.asked ? std::vector{question} : Shown{});
    EXPECT_EQ(Find<QCheckBox>("AccumulateChk").isChecked(), c.checked);
    EXPECT_EQ(state.accumulate, c.checked);
    EXPECT_EQ(Text("StockCount"), std::to_string(c.pointsLeft));
    EXPECT_FALSE(state.stock.DiffersFrom(state.ColourConditions()))
        << "the conditions are recorded whatever the answer";
    EXPECT_EQ(state.stock.StockIlluminant, now.illuminant);
    messages.answers.clear();
  }
}

TEST_F(Panel, AccumulatedPointsAreOnTheDiagramWhileColoursAreAccumulated) {
  const auto points = [this] {
    int count = 0;
    const auto* diagram = panel.findChild<ChromaticityDiagram*>();
    for (int i = 0; i < diagram->graphCount(); ++i) {
      count += diagram->graph(i)->dataCount();
    }
    return count;
  };
  state.stock.Record(state.ColourConditions());
  (void)state.stock.StockAdd({.x = 0.3, .y = 0.3}, true);
  (void)state.stock.StockAdd({.x = 0.4, .y = 0.4}, true);
  panel.Show(1);
  EXPECT_EQ(points(), 0);
  Press("AccumulateChk");
  EXPECT_EQ(points(), 2);
  EXPECT_EQ(Text("StockCount"), "2");
  int changes = 0;
  QObject::connect(&session, &Session::StockChanged, &panel, [&changes] { ++changes; });
  for (const int left : {1, 0, 0}) {
    Press("StockClear");
    EXPECT_EQ(points(), left);
    EXPECT_EQ(Text("StockCount"), std::to_string(left));
  }
  EXPECT_EQ(changes, 2);
  (void)state.stock.StockAdd({.x = 0.3, .y = 0.3}, true);
  state.colour.illuminant = 4;
  panel.Show(1);
  EXPECT_EQ(points(), 0) << "taken under another illuminant";
}

}  // namespace
}  // namespace vexa

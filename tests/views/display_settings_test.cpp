// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>

#include "support/window_test.h"
#include "views/common/window_messages.h"
#include "views/settings/dispset.h"

namespace vexa {
namespace {

using DisplaySettings = test::ViewTest;

struct Case {
  std::vector<std::pair<const char*, const char*>> typed;
  const char* message;          ///< null when accepted
  const char* fault = nullptr;  ///< the field to be entered again
};

TEST_F(DisplaySettings, EntriesAreCheckedInTheirOrder) {
  const char* const kWidth = "波長表示の幅が範囲を越えています。 (20 ≦ 設定値 ≦ 401)";
  const char* const kMaximum = "反射率の最大値の設定範囲を越えています。 (0.01 ≦ 設定値 ≦ 100)";
  const Case cases[] = {
      {{{"Shortest", "439"}},
       "波長表示の最短波長値が設定範囲外です。 (440<= 設定値 <=840)",
       "Shortest"},
      {{{"Shortest", "500"}, {"Longest", "499"}},
       "波長表示の最長波長値が設定範囲外です。 (500<= 設定値 <=840)",
       "Longest"},
      {{{"Shortest", "440"}, {"Longest", "459"}, {"WavelengthTick", "-"}}, kWidth, "Longest"},
      {{{"WavelengthTick", "4.9"}},
       "波長の目盛り間隔が設定範囲を越えています。 (5 ≦ 設定値 ≦ 1000)",
       "WavelengthTick"},
      {{{"Minimum", "-1"}, {"Maximum", "0"}},
       "反射率の最小値の設定範囲を越えています。 (0 ≦ 設定値 ≦ 100)",
       "Minimum"},
      {{{"Maximum", "0.009"}}, kMaximum, "Maximum"},
      {{{"Minimum", "5"}, {"Maximum", "5"}}, kMaximum, "Maximum"},
      {{{"Minimum", "0"}, {"Maximum", "10"}, {"Tick", "0.09"}},
       "反射率の目盛り間隔が設定範囲を越えています。 (最大目盛り本数 100)",
       "Tick"},
      {{{"TextStep", "101"}},
       "ﾃｷｽﾄ表示の表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1 ≦ 設定値 ≦ 100)",
       "TextStep"},
      {{{"TextStep", ""}}, "ﾃｷｽﾄ表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1≦ 設定値 ≦ 100)", "TextStep"},
      {{{"AverageShortest", "841"}},
       "平均反射率の最短波長値が設定範囲外です。 (440<= 設定値 <=840)",
       "AverageShortest"},
      {{{"AverageLongest", "-"}},
       "平均反射率の最長波長値が設定範囲外です。 (440<= 設定値 <=840)",
       "AverageLongest"},
      {{{"AverageShortest", "600"}, {"AverageLongest", "599"}},
       "平均反射率の幅が範囲を越えています。 (1 ≦ 設定値 ≦ 401)",
       "AverageLongest"},
      {{{"Shortest", "440"}, {"Longest", "460"}, {"Maximum", "0.01"}, {"Tick", "0.0001"}}, nullptr},
  };
  for (const Case& c : cases) {
    state = {};
    dispset window(session, messages);
    for (const char* flag : {"FullScale", "AutoScale", "AutoTicks"}) {
      test::Child<QAbstractButton>(window, flag).setChecked(false);
    }
    for (const auto& [field, text] : c.typed) {
      test::Child<QLineEdit>(window, field).setText(QLatin1String(text));
    }
    window.show();
    test::Click(window, "OK");
    EXPECT_EQ(window.isVisible(), c.message != nullptr);
    const auto shown = messages.Take();
    ASSERT_EQ(shown.size(), c.message == nullptr ? 0U : 1U) << c.typed.front().first;
    if (c.message != nullptr) {
      EXPECT_EQ(shown[0].Text(), std::string("設定入力: ") + c.message);
      EXPECT_EQ(state.display.maximumPercent, 4.0) << "nothing is stored";
      const auto& field = test::Child<QLineEdit>(window, c.fault);
      EXPECT_EQ(window.focusWidget(), &field) << c.fault;
      EXPECT_EQ(field.selectedText(), field.text());
    }
  }
}

TEST_F(DisplaySettings, BeginsWithItsFirstFieldAndTabEntersAGroupOnWhatIsChosen) {
  state.colour.illuminant = 3;
  dispset window(session, messages);
  window.show();
  EXPECT_LT(window.width(), window.screen()->availableSize().width()) << "it scrolls instead";
  EXPECT_EQ(window.focusWidget()->objectName(), QStringLiteral("FullScale"));
  for (int i = 0; i < 4; ++i) {
    const auto& button =
        test::Child<QWidget>(window, qPrintable(QStringLiteral("Illuminant%1").arg(i)));
    EXPECT_EQ((button.focusPolicy() & Qt::TabFocus) != 0, i == 2) << i;
  }
  test::Click(window, "Illuminant0");
  EXPECT_TRUE(test::Child<QWidget>(window, "Illuminant0").focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(test::Child<QWidget>(window, "Illuminant2").focusPolicy() & Qt::TabFocus);
}

TEST_F(DisplaySettings, ChangedConditionsOfferToClearTheStock) {
  for (const MessageResult answer : {MessageResult::kYes, MessageResult::kNo}) {
    state = {};
    (void)state.stock.StockAdd({}, true);
    messages.answers = {answer};
    dispset window(session, messages);
    test::Click(window, "Illuminant3");
    test::Child<QLineEdit>(window, "Shortest").setText(QStringLiteral("500"));
    test::Click(window, "OK");
    EXPECT_EQ(messages.Take().at(0).id, Message::kClearStockForDisplay);
    EXPECT_EQ(state.stock.Count, answer == MessageResult::kYes ? 0 : 1);
    EXPECT_EQ(state.colour.illuminant, 4);
    EXPECT_EQ(state.display.shortestNm, 440.0) << "full scale stands above what was typed";
  }
}

TEST_F(DisplaySettings, AClickSelectsAnEntryAndOtherCharactersAreRefused) {
  state.colour.illuminant = 7;
  state.display.labScale = 5;
  state.display.tickPercent = 0.00004;
  dispset window(session, messages);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto& step = test::Child<QLineEdit>(window, "TextStep");
  QTest::mouseClick(&step, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(step.selectedText(), QStringLiteral("1.0"));
  QTest::keyClicks(&step, QStringLiteral("2x5"));
  const test::ShownMessage refused{Message::kEntryRefused};
  EXPECT_EQ(messages.Take(), std::vector{refused});
  window.accept();
  EXPECT_EQ(state.display.textStepNm, 25);
  EXPECT_EQ(state.colour.illuminant, 7) << "not offered, so not replaced";
  EXPECT_EQ(state.display.labScale, 5);
  EXPECT_EQ(state.display.tickPercent, 0.00004) << "not edited";
}

TEST_F(DisplaySettings, ARefusedEntryIsSelectedWhenItsMessageIsClosed) {
  WindowMessages shown;
  dispset window(session, shown);
  test::Click(window, "AutoTicks");
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto& tick = test::Child<QLineEdit>(window, "Tick");
  tick.setFocus();
  EXPECT_EQ(test::Type(window, "Tick", "0"), QStringLiteral("0"));
  QTest::keyClick(&tick, Qt::Key_Return);
  QWidget* message = QApplication::activeModalWidget();
  ASSERT_NE(message, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(message));
  QTest::keyClick(message, Qt::Key_Return);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_EQ(window.focusWidget(), &tick);
  EXPECT_EQ(tick.selectedText(), QStringLiteral("0.0"));
}

}  // namespace
}  // namespace vexa

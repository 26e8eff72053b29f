// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/original_msg_frm.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <QToolButton>
#include <map>

#include "support/window_test.h"

namespace vexa {
namespace {

using test::Child;

// Shows a message, lets `act` do something with the open dialog, and returns the result.
template <typename Act>
MessageResult Show(OriginalMsgFrm& dialog, std::int16_t type, Act act) {
  QTimer::singleShot(0, &dialog, act);
  dialog.MsgCall(QStringLiteral("一行目\r\r三行目"), type, QStringLiteral("VEXA-KT ｴﾗｰ"));
  return dialog.Result();
}

TEST(OriginalMsgFrm, ShowsTheButtonsOfItsTypeAndTellsWhichWasPressed) {
  struct Case {
    std::int16_t type;
    std::map<std::string, MessageResult> buttons;
    MessageResult byFrame;
  };
  using enum MessageResult;
  const Case cases[] = {
      {0, {{"btnOK", kOk}}, kOk},
      {1 + 48, {{"btnOK", kOk}, {"btnCancel", kCancel}}, kCancel},
      {3 + 32, {{"btnYes", kYes}, {"btnNo", kNo}, {"btnCancel", kCancel}}, kCancel},
      {4 + 32, {{"btnYes", kYes}, {"btnNo", kNo}}, kNo},
      {16, {{"btnOK", kOk}}, kOk},
  };
  OriginalMsgFrm dialog;
  for (const Case& c : cases) {
    for (const auto& [name, result] : c.buttons) {
      const auto press = [&, button = name] {
        for (const auto* each : dialog.findChildren<QPushButton*>()) {
          EXPECT_EQ(each->isVisible(), c.buttons.contains(each->objectName().toStdString()));
        }
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("VEXA-KT ｴﾗｰ"));
        EXPECT_EQ(Child<QLabel>(dialog, "lblCmmnt").text(), QStringLiteral("一行目\n\n三行目"));
        test::Click(dialog, button.c_str());
      };
      EXPECT_EQ(Show(dialog, c.type, press), result);
    }
    EXPECT_EQ(Show(dialog, c.type, [&dialog] { dialog.close(); }), c.byFrame) << c.type;
  }
}

TEST(OriginalMsgFrm, DetailsUnfoldUnderTheTextOfTheirMessageAlone) {
  OriginalMsgFrm dialog;
  for (const QString& details : {QString(), QStringLiteral("/dev/ttyS4"), QString()}) {
    QTimer::singleShot(0, &dialog, [&] {
      auto& unfold = Child<QToolButton>(dialog, "Unfold");
      const auto& text = Child<QLabel>(dialog, "Details");
      EXPECT_EQ(unfold.isVisible(), !details.isEmpty());
      EXPECT_FALSE(text.isVisible());
      unfold.click();
      EXPECT_EQ(text.text(), details);
      EXPECT_TRUE(text.isVisible());
      dialog.close();
    });
    dialog.MsgCall(QStringLiteral("x"), message_type::kOk, QStringLiteral("t"), details);
  }
}

}  // namespace
}  // namespace vexa

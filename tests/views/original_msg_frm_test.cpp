// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/original_msg_frm.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <QToolButton>
#include <set>

namespace vexa {
namespace {

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
    std::set<std::string> buttons;
    MessageResult byFrame;
  };
  const Case cases[] = {
      {0, {"btnOK"}, MessageResult::kOk},
      {1 + 48, {"btnOK", "btnCancel"}, MessageResult::kCancel},
      {3 + 32, {"btnYes", "btnNo", "btnCancel"}, MessageResult::kCancel},
      {4 + 32, {"btnYes", "btnNo"}, MessageResult::kNo},
      {16, {"btnOK"}, MessageResult::kOk},
  };
  const std::pair<const char*, MessageResult> results[] = {{"btnOK", MessageResult::kOk},
                                                           {"btnCancel", MessageResult::kCancel},
                                                           {"btnYes", MessageResult::kYes},
                                                           {"btnNo", MessageResult::kNo}};
  OriginalMsgFrm dialog;
  for (const Case& c : cases) {
    for (const auto& [name, result] : results) {
      if (!c.buttons.contains(name)) {
        continue;
      }
      EXPECT_EQ(Show(dialog, c.type,
                     [&, button = name] {
                       std::set<std::string> visible;
                       for (const auto* each : dialog.findChildren<QPushButton*>()) {
                         if (each->isVisible()) {
                           visible.insert(each->objectName().toStdString());
                         }
                       }
                       EXPECT_EQ(visible, c.buttons);
                       EXPECT_EQ(dialog.windowTitle(), QStringLiteral("VEXA-KT ｴﾗｰ"));
                       EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblCmmnt"))->text(),
                                 QStringLiteral("一行目\n\n三行目"));
                       dialog.findChild<QPushButton*>(QLatin1String(button))->click();
                     }),
                result);
    }
    EXPECT_EQ(Show(dialog, c.type, [&dialog] { dialog.close(); }), c.byFrame) << c.type;
  }
}

TEST(OriginalMsgFrm, DetailsUnfoldUnderTheTextOfTheirMessageAlone) {
  OriginalMsgFrm dialog;
  for (const QString& details : {QString(), QStringLiteral("/dev/ttyS4"), QString()}) {
    QTimer::singleShot(0, &dialog, [&] {
      auto* unfold = dialog.findChild<QToolButton*>(QStringLiteral("Unfold"));
      auto* text = dialog.findChild<QLabel*>(QStringLiteral("Details"));
      EXPECT_EQ(unfold->isVisible(), !details.isEmpty());
      EXPECT_FALSE(text->isVisible());
      unfold->click();
      EXPECT_EQ(text->text(), details);
      EXPECT_TRUE(text->isVisible());
      dialog.close();
    });
    dialog.MsgCall(QStringLiteral("x"), message_type::kOk, QStringLiteral("t"), details);
  }
}

}  // namespace
}  // namespace vexa

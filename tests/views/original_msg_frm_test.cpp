// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/original_msg_frm.h"

#include <gtest/gtest.h>

#include <QToolButton>
#include <map>

#include "support/window_test.h"
#include "views/common/window_messages.h"

namespace vexa {
namespace {

using test::Child;
using enum MessageResult;

TEST(OriginalMsgFrm, ShowsTheButtonsOfItsMessageAndTellsWhichWasPressed) {
  struct Case {
    Message id;
    std::map<std::string, MessageResult> buttons;
    MessageResult byFrame;
  };
  const Case cases[] = {
      {Message::kSettingsReadError, {{"btnOK", kOk}}, kOk},
      {Message::kReplaceFileOrCancel, {{"btnOK", kOk}, {"btnCancel", kCancel}}, kCancel},
      {Message::kSaveEnvironment,
       {{"btnYes", kYes}, {"btnNo", kNo}, {"btnCancel", kCancel}},
       kCancel},
      {Message::kReplaceFile, {{"btnYes", kYes}, {"btnNo", kNo}}, kNo},
  };
  OriginalMsgFrm dialog;
  for (const Case& c : cases) {
    for (const auto& [button, result] : c.buttons) {
      dialog.MsgCall({c.id});
      for (const auto* each : dialog.findChildren<QPushButton*>()) {
        EXPECT_EQ(each->isVisible(), c.buttons.contains(each->objectName().toStdString()));
      }
      EXPECT_EQ(dialog.windowTitle(), MessageTitle(c.id));
      test::Click(dialog, button.c_str());
      EXPECT_FALSE(dialog.isVisible());
      EXPECT_EQ(dialog.Result(), result);
    }
    dialog.MsgCall({c.id});
    dialog.close();
    EXPECT_EQ(dialog.Result(), c.byFrame);
  }
  // A path may look like a place for an argument.
  dialog.MsgCall({Message::kSettingsReadError, {QStringLiteral("/%2%1")}});
  EXPECT_EQ(
      Child<QLabel>(dialog, "lblCmmnt").text(),
      QStringLiteral(
          "ﾌｧｲﾙの読み込みでエラーが発生しました。\n\nﾌｧｲﾙ名:/%2%1\n\nﾃﾞﾌｫﾙﾄ値に設定されます。"));
}

TEST(OriginalMsgFrm, DetailsUnfoldUnderTheTextOfTheirMessageAlone) {
  OriginalMsgFrm dialog;
  for (const QString& details : {QString(), QStringLiteral("/dev/ttyS4"), QString()}) {
    dialog.MsgCall({Message::kControllerFailed, {}, details});
    auto& unfold = Child<QToolButton>(dialog, "Unfold");
    const auto& text = Child<QLabel>(dialog, "Details");
    EXPECT_EQ(unfold.isVisible(), !details.isEmpty());
    EXPECT_FALSE(text.isVisible());
    unfold.click();
    EXPECT_EQ(text.text(), details);
    EXPECT_TRUE(text.isVisible());
    dialog.close();
  }
}

class Messages : public testing::Test {
 protected:
  Messages() { messages.SetWindow(&window); }

  static QCoro::Task<> Ask(MessageService& asked, Message id, std::vector<MessageResult>& taken) {
    const MessageCall call{id};
    const MessageResult answer = co_await asked.Ask(call);
    taken.push_back(answer);
    asked.Tell({Message::kSaturated});
  }
  OriginalMsgFrm& Dialog() { return *window.findChild<OriginalMsgFrm*>(); }

  std::vector<MessageResult> answers;
  QWidget window;
  WindowMessages messages;
};

TEST_F(Messages, AreShownOneAfterAnotherAndHoldNothingUp) {
  messages.Tell({Message::kNoValidData});
  Ask(messages, Message::kReplaceFile, answers);
  Ask(messages, Message::kMeasureOver, answers);
  EXPECT_TRUE(answers.empty());
  EXPECT_EQ(Dialog().windowTitle(), MessageTitle(Message::kNoValidData));
  test::Click(Dialog(), "btnOK");
  EXPECT_EQ(Dialog().windowTitle(), MessageTitle(Message::kReplaceFile));
  test::Click(Dialog(), "btnYes");
  test::Click(Dialog(), "btnCancel");
  EXPECT_EQ(answers, (std::vector{kYes, kCancel}));
  for (int told = 0; told < 2; ++told) {
    EXPECT_EQ(Dialog().windowTitle(), MessageTitle(Message::kSaturated));
    test::Click(Dialog(), "btnOK");
  }
  EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(Messages, ClosingTheWindowRefusesWhatIsAsked) {
  window.show();
  Ask(messages, Message::kReplaceFile, answers);
  Ask(messages, Message::kSaveEnvironment, answers);
  window.close();
  EXPECT_EQ(answers, (std::vector{kNo, kCancel}));
}

TEST(WindowMessages, TheirEndRefusesWhatIsAsked) {
  std::vector<MessageResult> answers;
  {
    WindowMessages messages;
    const auto ask = [](WindowMessages& asked, std::vector<MessageResult>& taken) -> QCoro::Task<> {
      const MessageCall call{Message::kClearStock};
      const MessageResult answer = co_await asked.Ask(call);
      taken.push_back(answer);
    };
    ask(messages, answers);
  }
  EXPECT_EQ(answers, std::vector{kCancel});
}

}  // namespace
}  // namespace vexa

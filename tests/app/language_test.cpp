// SPDX-License-Identifier: GPL-3.0-or-later
// The windows in English: not a text of theirs is left in Japanese.
#include "base/language.h"

#include <QAction>
#include <QCoroTask>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>

#include "app/main_window_test.h"
#include "files/program_settings_file.h"

namespace vexa {
namespace {

class English : public test::MainWindowTest {
 protected:
  English() { UseLanguage(Language::kEnglish); }
  ~English() override {
    window.reset();
    UseLanguage(Language::kJapanese);
  }

  // As the program starts, until the controller has answered.
  void Begin() {
    Create();
    QCoro::waitFor(window->Load());
    messages.Take();
  }

  // The texts of a window that hold Japanese, other than names of files.
  [[nodiscard]] QStringList JapaneseTexts(QWidget& of) const {
    static const QRegularExpression kJapanese(
        QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}]"));
    QStringList texts{of.windowTitle()};
    for (const QWidget* widget : of.findChildren<QWidget*>()) {
      texts << widget->toolTip() << widget->accessibleName();
      for (const char* property : {"text", "title"}) {
        texts << widget->property(property).toString();
      }
      for (const QAction* action : widget->actions()) {
        texts << action->text();
      }
    }
    for (const auto* tabs : of.findChildren<QTabWidget*>()) {
      for (int i = 0; i < tabs->count(); ++i) {
        texts << tabs->tabText(i);
      }
    }
    for (const auto* view : of.findChildren<QTableView*>()) {
      for (int i = 0; view->model() != nullptr && i < view->model()->columnCount(); ++i) {
        texts << view->model()->headerData(i, Qt::Horizontal).toString();
      }
    }
    texts.replaceInStrings(peer.Directory(), QString());
    QStringList japanese = texts.filter(kJapanese);
    japanese.removeAll(QStringLiteral("日本語"));
    japanese.removeDuplicates();
    return japanese;
  }

  // The commands of the menus, but for those that end something or wait for the controller.
  [[nodiscard]] QList<QAction*> Commands() const {
    QList<QAction*> commands;
    for (const auto* menu : window->menuBar()->findChildren<QMenu*>()) {
      for (QAction* action : menu->actions()) {
        if (action->menu() == nullptr && action->isEnabled() && !action->isSeparator() &&
            action->text() != QLatin1String("E&xit")) {
          commands << action;
        }
      }
    }
    return commands;
  }

  QAction* Command(const char* text) {
    for (QAction* action : Commands()) {
      if (action->text() == QString::fromUtf8(text)) {
        return action;
      }
    }
    ADD_FAILURE() << text;
    return nullptr;
  }
};

TEST_F(English, NoWindowHoldsAJapaneseText) {
  peer.files.Write("program.json", R"({"showCie": true})");
  Begin();
  EXPECT_EQ(JapaneseTexts(*window), QStringList());
  EXPECT_EQ(window->menuBar()->actions().constFirst()->text(), QStringLiteral("&File"));
  int opened = 0;
  for (QAction* command : Commands()) {
    if (command->data().isValid()) {
      continue;  // a view, or a language
    }
    command->trigger();
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->isVisible() && top != window.get()) {
        ++opened;
        EXPECT_EQ(JapaneseTexts(*top), QStringList()) << command->text().toStdString();
        top->close();
      }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_GE(opened, 12);
}

TEST_F(English, TheChoiceIsKeptForTheNextStart) {
  Begin();
  Command("English")->trigger();
  EXPECT_EQ(messages.Take(), test::Shown{Message::kLanguageAtNextStart});
  EXPECT_EQ(StartProgram(peer.Directory()).settings.language, Language::kEnglish);
  Command("日本語")->trigger();
  EXPECT_EQ(StartProgram(peer.Directory()).settings.language, Language::kJapanese);
}

}  // namespace
}  // namespace vexa

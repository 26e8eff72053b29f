// SPDX-License-Identifier: GPL-3.0-or-later
// English: not a text of the windows is left in Japanese, and not a byte of the files differs.
#include "base/language.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <cmath>
#include <functional>
#include <map>
#include <stdexcept>

#include "app/main_window_test.h"
#include "files/environment_file.h"
#include "files/program_settings_file.h"
#include "views/common/elided_label.h"

namespace vexa {
namespace {

// A line of detector counts with fringes around a mean.
QByteArray Fringes(int mean) {
  QByteArray line;
  for (int pixel = 0; pixel < 512; ++pixel) {
    line += test::FlatLines(1, mean + static_cast<int>(std::lround(90.0 * std::sin(pixel / 20.0))))
                .first(2);
  }
  return line;
}

// The texts of a window that hold Japanese, but for names of files.
QStringList JapaneseTexts(const QWidget& of, const QString& directory) {
  static const QRegularExpression kJapanese(QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}]"));
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
  texts.replaceInStrings(directory, QString());
  texts.removeAll(QStringLiteral("日本語"));
  return texts.filter(kJapanese);
}

// The texts that have less room than they need. An ElidedLabel is made for that.
QStringList CutTexts(const QWidget& of) {
  QStringList cut;
  const auto check = [&cut](const QString& text, int room, int needed) {
    if (!text.isEmpty() && room < needed) {
      cut << QStringLiteral("%1 (%2 of %3)").arg(text).arg(room).arg(needed);
    }
  };
  for (const QWidget* widget : of.findChildren<QWidget*>()) {
    if (!widget->isVisible()) {
      continue;
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      if (label->wordWrap()) {
        check(label->text(), label->height(), label->heightForWidth(label->width()));
      } else if (qobject_cast<const ElidedLabel*>(label) == nullptr) {
        check(label->text(), label->width(), label->sizeHint().width());
      }
    } else if (const auto* push = qobject_cast<const QPushButton*>(widget)) {
      // Its hint is that of a style with wide buttons.
      const QSize text = push->fontMetrics().size(Qt::TextShowMnemonic, push->text());
      check(push->text(), push->width(), text.width() + 8);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      check(button->text(), button->width(), button->sizeHint().width());
    } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
      const QSize title = group->fontMetrics().size(Qt::TextShowMnemonic, group->title());
      check(group->title(), group->width(), title.width());
    } else if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
      check(box->currentText(), box->width(), box->minimumSizeHint().width());
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
      check(tabs->tabText(0), tabs->width(), tabs->sizeHint().width());
    } else if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
      for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
        check(header->model()->headerData(i, Qt::Horizontal).toString(), header->sectionSize(i),
              header->sectionSizeHint(i));
      }
    }
  }
  return cut;
}

class Languages : public test::MainWindowTest {
 protected:
  ~Languages() override {
    window.reset();
    UseLanguage(Language::kJapanese);
  }

  // The commands of the menus that open a window or ask for a file.
  [[nodiscard]] QList<QAction*> Commands() const {
    QList<QAction*> commands;
    for (const auto* menu : window->menuBar()->findChildren<QMenu*>()) {
      for (QAction* action : menu->actions()) {
        if (action->menu() == nullptr && action->isEnabled() && !action->isSeparator() &&
            !action->data().isValid() && action != window->Commands().quit) {
          commands << action;
        }
      }
    }
    return commands;
  }

  // Every window but the main one, and every page of it.
  void ForEachWindow(const std::function<void(QWidget&)>& act) {
    for (QAction* command : Commands()) {
      command->trigger();
      SCOPED_TRACE(command->text().toStdString());
      for (QWidget* top : QApplication::topLevelWidgets()) {
        if (!top->isVisible() || top == window.get()) {
          continue;
        }
        EXPECT_TRUE(QTest::qWaitFor([top] { return top->cursor().shape() != Qt::BusyCursor; }))
            << "it reads records";
        auto* pages = top->findChild<QTabWidget*>();
        for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
          if (pages != nullptr) {
            pages->setCurrentIndex(page);
          }
          test::Wait(0);
          act(*top);
        }
        top->close();
      }
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  // Two slots with everything that can be computed of them.
  void MeasureTwo() {
    Settings settings;
    settings.thickness.enabled = true;
    settings.thickness.type = ThicknessType::kC;
    ASSERT_TRUE(WriteEnvFile(Path("in.env"), settings));
    dialogs.open = Path("in.env");
    window->Commands().openEnvironment->trigger();
    WaitUntilIdle();
    dialogs.open.reset();
    Press("AccumulateChk");
    Press("AutoMesThickChk");
    Measure("Background", 100);
    Measure("Reference", 500);
    for (const int mean : {300, 200}) {
      peer.SetLines(Fringes(mean));
      Press(mean == 300 ? "Mes1" : "Mes2");
      WaitUntilIdle();
    }
  }

  // Where the save dialogs lead.
  void SaveAs(const char* name, int filter = 1) { dialogs.save = SaveChoice{Path(name), filter}; }

  QWidget& ShownWindow(const char* name) {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->isVisible() && top->objectName() == QLatin1String(name)) {
        return *top;
      }
    }
    throw std::runtime_error(name);
  }

  // A day's work that leaves a file of every kind.
  void Work() {
    const MenuCommands& commands = window->Commands();
    ASSERT_NO_FATAL_FAILURE(MeasureTwo());
    for (const auto& [name, layout] : {std::pair{"a.csv", 1}, {"ten.dat", 2}, {"five.dat", 3}}) {
      SaveAs(name, layout);
      commands.saveFileAs->trigger();
    }
    SaveAs("a.env");
    commands.saveEnvironmentAs->trigger();
    SaveAs("a.stc");
    Press("StockShow");
    test::Click(ShownWindow("StockWindow"), "StockSave");
    ShownWindow("StockWindow").close();
    SaveAs("a.thk");
    commands.thicknessGraph->trigger();
    ShownWindow("ThickGraph").findChild<QAction*>(QStringLiteral("SaveAs"))->trigger();
    SaveAs("difference.csv");
    InDialog(commands.colourDifference, [](QDialog& dialog) { test::Click(dialog, "SaveTable"); });
    SaveAs("a.std");
    InDialog(commands.standards, [](QDialog& dialog) { test::Click(dialog, "save_bt"); });
    SaveAs("a.ref", 2);
    InDialog(commands.referenceSettings, [](QDialog& dialog) { test::Click(dialog, "Save"); });
    SaveAs("a.ind", 2);
    InDialog(commands.thicknessSettings, [](QDialog& dialog) { test::Click(dialog, "Save"); });
    title = window->windowTitle();
    window->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
  }

  QString title;
};

TEST_F(Languages, EveryTextIsInItsLanguageAndHasRoom) {
  for (const Language language : {Language::kJapanese, Language::kEnglish}) {
    SCOPED_TRACE(LanguageCode(language).toStdString());
    UseLanguage(language);
    peer.files.Write("program.json", R"({"showCie": true})");
    StartPatient();
    ASSERT_NO_FATAL_FAILURE(MeasureTwo());
    window->resize(1024, 600);
    test::Wait(0);
    int opened = 0;
    const auto look = [&](QWidget& at) {
      ++opened;
      EXPECT_EQ(CutTexts(at).join(u'\n').toStdString(), "");
      if (language == Language::kEnglish) {
        EXPECT_EQ(JapaneseTexts(at, peer.Directory()).join(u'\n').toStdString(), "");
      }
    };
    for (QAction* view : window->Commands().views->actions()) {
      view->trigger();
      test::Wait(0);
      look(*window);
    }
    ForEachWindow(look);
    EXPECT_GE(opened, 20);
    messages.Take();
  }
}

TEST_F(Languages, NoTwoCommandsOfAMenuShareALetter) {
  for (const Language language : {Language::kJapanese, Language::kEnglish}) {
    UseLanguage(language);
    Create();
    QList<QWidget*> menus{window->menuBar()};
    for (auto* menu : window->findChildren<QMenu*>()) {
      menus << menu;
    }
    for (const QWidget* menu : std::as_const(menus)) {
      std::map<QKeySequence, QString> letters;
      for (const QAction* action : menu->actions()) {
        const QKeySequence letter = QKeySequence::mnemonic(action->text());
        EXPECT_TRUE(letter.isEmpty() || letters.emplace(letter, action->text()).second)
            << action->text().toStdString() << " and " << letters[letter].toStdString();
      }
    }
  }
}

// One day with an instrument and a directory of its own.
class Day : public Languages {
 public:
  void TestBody() override {}

  // The files that it leaves, by name. The program directory differs in six letters alone.
  std::map<QString, QByteArray> Files() {
    StartPatient();
    Work();
    EXPECT_EQ(messages.Take(), (test::Shown{{Message::kSaveEnvironment, {Path("a.env")}}}));
    std::map<QString, QByteArray> left;
    for (const QString& name : QDir(peer.Directory()).entryList(QDir::Files)) {
      // Rows of the store are chained by what is drawn at random.
      if (!name.startsWith(QLatin1String("com")) && !name.startsWith(QLatin1String("records.db"))) {
        left[name] =
            peer.files.Read(name.toUtf8()).replace(peer.Directory().last(6).toLatin1(), "");
      }
    }
    left[QStringLiteral("the caption of the window")] = title.toUtf8();
    return left;
  }
};

TEST(LanguageOfFiles, IsNone) {
  UseLanguage(Language::kJapanese);
  const std::map<QString, QByteArray> japanese = Day().Files();
  for (const char* name : {"a.csv", "ten.dat", "five.dat", "a.env", "a.stc", "a.thk",
                           "difference.csv", "a.std", "a.ref", "a.ind", "vexa.int"}) {
    EXPECT_TRUE(japanese.contains(QLatin1String(name))) << name;
  }
  UseLanguage(Language::kEnglish);
  std::map<QString, QByteArray> english = Day().Files();
  EXPECT_EQ(english.size(), japanese.size());
  for (const auto& [name, bytes] : japanese) {
    EXPECT_EQ(english[name].toStdString(), bytes.toStdString()) << name.toStdString();
  }
}

TEST_F(Languages, TheChoiceIsKeptForTheNextStart) {
  Start();
  const QList<QAction*> languages = window->Commands().languages->actions();
  languages.at(1)->trigger();
  EXPECT_EQ(messages.Take(), test::Shown{Message::kLanguageAtNextStart});
  EXPECT_EQ(StartProgram(peer.Directory()).settings.language, Language::kEnglish);
  languages.at(0)->trigger();
  EXPECT_EQ(StartProgram(peer.Directory()).settings.language, Language::kJapanese);
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// Files as they come in: dropped, recently used, named at the start.
#include "app/file_opener.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "app/main_window_test.h"
#include "files/data_file.h"
#include "files/environment_file.h"
#include "files/program_settings_file.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Shown;

class FileOpening : public test::MainWindowTest {
 protected:
  void SetUp() override { Start(); }

  // A data file whose first slot has so much reflectance everywhere.
  QString DataFile(const char* name, double percent, DataFileLayout layout = DataFileLayout::kCsv) {
    VEXATYPE content;
    content.Slot(1)->valid = true;
    content.Slot(1)->reflectance = test::Flat(percent);
    EXPECT_TRUE(WriteDataFile(Path(name), layout, content));
    return Path(name);
  }

  QString EnvironmentFile(const char* name, std::int16_t view) {
    Settings settings = window->State();
    settings.display.view = view;
    EXPECT_TRUE(WriteEnvFile(Path(name), settings));
    return Path(name);
  }

  // As another program lets go of files over the window; whether they were taken.
  bool Drop(const QStringList& paths) {
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString& path : paths) {
      urls << QUrl::fromLocalFile(path);
    }
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &enter);
    if (!enter.isAccepted()) {
      return false;
    }
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a move would delete the file";
    test::Wait(0);
    WaitUntilIdle();
    return drop.isAccepted();
  }

  [[nodiscard]] QStringList Recent() const {
    QStringList paths;
    for (const QAction* action : window->Commands().recentFiles->actions()) {
      paths << action->toolTip();
    }
    return paths;
  }

  void TriggerRecent(int place) {
    window->Commands().recentFiles->actions().at(place)->trigger();
    test::Wait(0);
    WaitUntilIdle();
  }

  double FirstSlot() { return window->State().Slot(1)->reflectance[550]; }
};

TEST_F(FileOpening, ADroppedFileIsOpenedAsWhatItIs) {
  EXPECT_TRUE(Drop({DataFile("測定.csv", 2.5)}));
  EXPECT_EQ(FirstSlot(), 2.5);
  EXPECT_TRUE(Drop({EnvironmentFile("環境.ENV", 3)}));
  EXPECT_EQ(window->State().display.view, 3);
  EXPECT_EQ(peer.TakeFrames().back(), "96392900") << "its sampling time is sent";
  // The content counts before the ending.
  EXPECT_TRUE(QFile::rename(EnvironmentFile("b.env", 4), Path("b.txt")));
  EXPECT_TRUE(Drop({Path("b.txt")}));
  EXPECT_EQ(window->State().display.view, 4);
  EXPECT_TRUE(QFile::rename(DataFile("c.csv", 3.5), Path("c.env")));
  EXPECT_TRUE(Drop({Path("c.env")}));
  EXPECT_EQ(FirstSlot(), 3.5);
  EXPECT_EQ(messages.Take(), Shown{});

  // What the menu asks before it clears slots is asked here, too.
  messages.answers = {MessageResult::kCancel};
  EXPECT_TRUE(Drop({DataFile("d.dat", 4.5, DataFileLayout::kFiveBlocks)}));
  EXPECT_EQ(messages.Take(), (Shown{{Message::kEraseSlots, {QStringLiteral(" 1")}}}));
  EXPECT_EQ(FirstSlot(), 3.5);
  EXPECT_EQ(Recent(),
            (QStringList{Path("c.env"), Path("b.txt"), Path("環境.ENV"), Path("測定.csv")}));
}

TEST_F(FileOpening, WhatIsMeasuredAndNotSavedGoesOnlyWhenAgreedTo) {
  for (const auto& [button, counts] :
       {std::pair{"Background", 100}, {"Reference", 500}, {"Mes2", 300}}) {
    peer.SetLines(test::FlatLines(1, counts));
    Press(button);
    WaitUntilIdle();
  }
  messages.Take();
  messages.answers = {MessageResult::kCancel, MessageResult::kOk};
  for (const bool opened : {false, true}) {
    EXPECT_TRUE(Drop({DataFile("a.csv", 2.5)}));
    EXPECT_EQ(messages.Take(), Shown{Message::kReplaceUnsaved});
    EXPECT_EQ(window->State().Slot(2)->valid, !opened);
  }
  EXPECT_TRUE(Drop({DataFile("b.csv", 3.5)}));
  EXPECT_EQ(messages.Take(), Shown{}) << "all is in a file";
}

TEST_F(FileOpening, WhatCannotBeOpenedChangesNothing) {
  ASSERT_TRUE(Drop({DataFile("a.csv", 2.5)}));
  const std::pair<QStringList, Shown> cases[] = {
      {{Path("gone.csv")}, {{Message::kFileMissing, {Path("gone.csv")}}}},
      {{Path("gone.env")}, {{Message::kFileMissing, {Path("gone.env")}}}},
      {{DataFile("b.csv", 3.5), DataFile("c.csv", 4.5)}, {Message::kOneFileAtATime}},
  };
  for (const auto& [paths, told] : cases) {
    EXPECT_TRUE(Drop(paths));
    EXPECT_EQ(messages.Take(), told);
  }
  for (const QString& path : {peer.files.Write("d.txt", "none"), peer.Directory()}) {
    EXPECT_TRUE(Drop({path}));
    EXPECT_EQ(messages.Take().size(), 1U) << path.toStdString();
  }
  EXPECT_FALSE(Drop({})) << "text, for example";
  EXPECT_EQ(FirstSlot(), 2.5);
  EXPECT_EQ(Recent(), QStringList{Path("a.csv")});

  peer.SetLines(test::FlatLines(1, 100));
  Press("Background");
  EXPECT_FALSE(Drop({Path("b.csv")})) << "while it measures";
  EXPECT_FALSE(window->Commands().recentFiles->isEnabled());
  WaitUntilIdle();
  InDialog(window->Commands().displaySettings,
           [&](QDialog&) { EXPECT_FALSE(Drop({Path("b.csv")})); });
  EXPECT_EQ(FirstSlot(), 2.5);
}

TEST_F(FileOpening, TheLastTenAreAtHandAlsoAtTheNextStart) {
  EXPECT_FALSE(window->Commands().recentFiles->isEnabled());
  QStringList expected;
  for (int i = 0; i < 12; ++i) {
    dialogs.open = DataFile(qPrintable(QStringLiteral("S&%1.csv").arg(i)), 1.0 + i);
    window->Commands().openFile->trigger();
    expected.prepend(*dialogs.open);
  }
  EXPECT_EQ(Recent(), expected.first(10));
  const QAction* tenth = window->Commands().recentFiles->actions().last();
  EXPECT_TRUE(tenth->text().startsWith(QStringLiteral("1&0 ")));
  EXPECT_TRUE(tenth->text().endsWith(QStringLiteral("S&&2.csv"))) << tenth->text().toStdString();

  dialogs.save = SaveChoice{Path("新.csv"), 1};
  window->Commands().saveFileAs->trigger();
  dialogs.save = SaveChoice{Path("新.env"), 1};
  window->Commands().saveEnvironmentAs->trigger();
  expected = QStringList{Path("新.env"), Path("新.csv")} + expected.first(8);
  EXPECT_EQ(Recent(), expected) << "what was saved is at hand, too";

  Start();
  messages.Take();
  EXPECT_EQ(Recent(), expected);
  TriggerRecent(3);
  EXPECT_EQ(FirstSlot(), 11.0);
  expected.move(3, 0);
  EXPECT_EQ(Recent(), expected);

  ASSERT_TRUE(QFile::remove(expected[2]));
  TriggerRecent(2);
  EXPECT_EQ(messages.Take(), (Shown{{Message::kRecentFileMissing, {expected[2]}}}));
  expected.removeAt(2);
  EXPECT_EQ(Recent(), expected);
  EXPECT_EQ(StartProgram(peer.Directory()).settings.recentFiles, expected);
}

TEST_F(FileOpening, TheFileThatItIsStartedWithIsOpenedAfterAll) {
  test::Done(window->OpenFile(DataFile("a.csv", 2.5)));
  EXPECT_EQ(FirstSlot(), 2.5);
  EXPECT_EQ(messages.Take(), Shown{});
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QTreeView>
#include <memory>

#include "support/temporary_files.h"
#include "support/waiting.h"

namespace vexa {
namespace {

class FileDialog : public testing::Test {
 protected:
  QCoro::Task<> Save() {
    const QString filters =
        QStringLiteral("Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|Data File(5)(*.dat)|*.dat");
    choice = co_await dialogs->AskSave(QString(), filters);
    ++answers;
  }
  static QFileDialog& Shown() {
    return *qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  }

  std::unique_ptr<WindowFileDialogs> dialogs = std::make_unique<WindowFileDialogs>();
  std::optional<SaveChoice> choice = SaveChoice();
  int answers = 0;
};

TEST_F(FileDialog, TellsUnderWhichFilterAFileIsSaved) {
  const test::TemporaryFiles files;
  for (int number = 1; number <= 3; ++number) {
    Save();
    EXPECT_EQ(answers, number - 1) << "nothing waits for it but who asks";
    QFileDialog& dialog = Shown();
    dialog.setDirectory(files.Directory());
    dialog.selectNameFilter(dialog.nameFilters().at(number - 1));
    dialog.selectFile(QStringLiteral("lens"));
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    ASSERT_EQ(answers, number);
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->path, files.Path("lens"));
    EXPECT_EQ(choice->filterIndex, number);
    Save();
    EXPECT_EQ(Shown().directory().path(), files.Directory()) << "the folder used last";
    Shown().reject();
    EXPECT_EQ(choice, std::nullopt);
    answers = number;
  }
}

TEST_F(FileDialog, AnswersNothingWhenItGoes) {
  auto window = std::make_unique<QWidget>();
  auto* asking = new QDialog(window.get());
  dialogs->SetWindow(window.get());
  const std::function<void()> ways[] = {[&] { delete asking; }, [&] { window.reset(); },
                                        [&] { dialogs.reset(); }};
  asking->open();
  int expected = 0;
  for (const auto& go : ways) {
    choice = SaveChoice();
    Save();
    EXPECT_EQ(answers, expected);
    go();
    EXPECT_EQ(answers, ++expected);
    EXPECT_EQ(choice, std::nullopt);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

// A process loses its locks on a file when it closes any descriptor of it: the records are locked,
// and lie where files are opened and saved.
TEST_F(FileDialog, LooksIntoNoFile) {
  const test::TemporaryFiles files;
  files.Write("records.db", "locked");
  QFile locked(files.Path("records.db"));
  ASSERT_TRUE(locked.open(QIODevice::ReadWrite));
  struct flock whole {};
  whole.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(locked.handle(), F_SETLK, &whole), 0);
  // Seen by a second descriptor, which is not closed before the end.
  QFile other(files.Path("records.db"));
  ASSERT_TRUE(other.open(QIODevice::ReadWrite));
  const auto isLocked = [&other] {
    struct flock asked {};
    asked.l_type = F_WRLCK;
    return ::fcntl(other.handle(), F_OFD_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
  };
  ASSERT_TRUE(isLocked());
  Save();
  QFileDialog& dialog = Shown();
  dialog.setNameFilter(QStringLiteral("(*)"));
  dialog.setDirectory(files.Directory());
  const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  ASSERT_NE(list, nullptr);
  for (int i = 0; i < 100 && list->model()->rowCount(list->rootIndex()) == 0; ++i) {
    test::Wait(10);
  }
  ASSERT_EQ(list->model()->rowCount(list->rootIndex()), 1);
  EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
  for (int column = 0; column < list->model()->columnCount(); ++column) {
    const QModelIndex place = list->model()->index(0, column, list->rootIndex());
    (void)place.data();
    (void)place.data(Qt::DecorationRole);
  }
  test::Wait(100);
  EXPECT_TRUE(isLocked());
  dialog.reject();
}

}  // namespace
}  // namespace vexa

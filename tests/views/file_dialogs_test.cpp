// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
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

}  // namespace
}  // namespace vexa

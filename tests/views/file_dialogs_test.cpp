// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/file_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include "support/temporary_files.h"

namespace vexa {
namespace {

TEST(WindowFileDialogs, TellsUnderWhichFilterAFileIsSaved) {
  const test::TemporaryFiles files;
  WindowFileDialogs dialogs;
  for (int number = 1; number <= 3; ++number) {
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      dialog->setDirectory(files.Directory());
      dialog->selectNameFilter(dialog->nameFilters().at(number - 1));
      dialog->selectFile(QStringLiteral("lens"));
      static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    });
    const auto choice =
        dialogs.AskSave(QString(), QStringLiteral("Data File(*.csv)|*.csv|Data File(*.dat)|*.dat|"
                                                  "Data File(5)(*.dat)|*.dat"));
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->path, files.Path("lens"));
    EXPECT_EQ(choice->filterIndex, number);
  }
}

}  // namespace
}  // namespace vexa

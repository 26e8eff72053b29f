// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace vexa {
namespace {

QProcess& RunVexa(QProcess& process, const QStringList& arguments) {
  process.start(QStringLiteral(VEXA_BIN_DIR "/vexa"), arguments);
  EXPECT_TRUE(process.waitForFinished(60000));
  return process;
}

class DemonstrationPath : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Serial, DemonstrationPath, testing::Values("--demo"));
INSTANTIATE_TEST_SUITE_P(Gpib, DemonstrationPath, testing::Values("--gpib --demo"));

TEST_P(DemonstrationPath, MeasuresFiveSamplesAndLeavesAFileAndAPicture) {
  const QTemporaryDir parent(QDir::tempPath() + QStringLiteral("/実 演-XXXXXX"));
  const QDir directory(parent.filePath(QStringLiteral("新しい")));
  QProcess process;
  EXPECT_EQ(
      RunVexa(process, QString::fromLatin1(GetParam()).split(u' ') << directory.path()).exitCode(),
      0)
      << process.readAllStandardError().constData();

  QFile data(directory.filePath(QStringLiteral("measurement.csv")));
  ASSERT_TRUE(data.open(QIODevice::ReadOnly));
  const QList<QByteArray> row = data.readAll().split('\n').at(2 + 550 - 440).split(',');
  ASSERT_EQ(row.size(), 11);
  for (int slot = 1; slot <= 10; ++slot) {
    EXPECT_EQ(row[slot].toDouble() > 0.0, slot <= 5) << slot;
  }
  // Bare crown glass, n = 1.5185 at 550 nm: ((n - 1) / (n + 1))^2 = 4.24 %. Its noise at one line
  // is a few hundredths of a percent.
  EXPECT_NEAR(row[1].toDouble(), 4.24, 0.25);
  EXPECT_EQ(QImage(directory.filePath(QStringLiteral("window.png"))).size(), QSize(1280, 900));
  EXPECT_FALSE(QFileInfo(directory.filePath(QStringLiteral("com5"))).isSymLink());
}

TEST(Demonstration, WrongOptionsAreOneLineAndStatusTwo) {
  for (const QStringList& arguments :
       {QStringList{QStringLiteral("--nonsense")}, QStringList{QStringLiteral("--demo")},
        QStringList{QStringLiteral("stray")}}) {
    QProcess process;
    EXPECT_EQ(RunVexa(process, arguments).exitCode(), 2);
    EXPECT_EQ(process.readAllStandardError().count("vexa: "), 1);
  }
}

}  // namespace
}  // namespace vexa

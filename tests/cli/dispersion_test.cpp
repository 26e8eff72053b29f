// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace vexa {
namespace {

constexpr int kTimeoutMs = 30000;

class DispersionCommandLine : public testing::Test {
 protected:
  // Runs "dispersion" in a folder of its own.
  int Run(const char* arguments) {
    QProcess process;
    process.setWorkingDirectory(directory.path());
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa-cli"),
                  QString::fromUtf8("dispersion %1").arg(QString::fromUtf8(arguments)).split(u' '));
    EXPECT_TRUE(process.waitForFinished(kTimeoutMs));
    out = process.readAllStandardOutput();
    err = process.readAllStandardError();
    return process.exitCode();
  }

  QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
  double At(int nm) const {
    return Json()[QLatin1String("values")].toArray().at(nm - 440).toDouble();
  }
  QByteArray FirstLine(const char* name) const {
    QFile file(directory.filePath(QString::fromUtf8(name)));
    return file.open(QIODevice::ReadOnly) ? file.readLine() : QByteArray();
  }

  QTemporaryDir directory{QDir::tempPath() + QStringLiteral("/分 散-XXXXXX")};
  QByteArray out;
  QByteArray err;
};

// SCHOTT, data sheet of N-BK7: constants of dispersion, and the index at the d line.
const char* const kCrown =
    "--sellmeier 1.03961212,0.231792344,1.01046945,0.00600069867,0.0200179144,103.560653 --json";

TEST_F(DispersionCommandLine, GivesTheIndexOrTheReflectanceOfASource) {
  EXPECT_EQ(Run(kCrown), 0);
  EXPECT_EQ(err, "");
  EXPECT_EQ(out.count('\n'), 1);
  EXPECT_EQ(Json()[QLatin1String("first")].toInt(), 440);
  EXPECT_EQ(Json()[QLatin1String("values")].toArray().size(), 401);
  EXPECT_NEAR(At(588), 1.51680, 3e-5);  // the d line is 0.44 nm short of 588

  EXPECT_EQ(Run("--schott 2.25,0,0,0,0,0 --as-reflectance --json"), 0);
  EXPECT_NEAR(At(840), 4.0, 1e-12);
  EXPECT_EQ(Run("--fixed 5.5 --as-reflectance"), 0);
  EXPECT_TRUE(out.startsWith(" 440       5.5000\n")) << out.left(40).constData();
}

TEST_F(DispersionCommandLine, WritesAFileThatItReadsBack) {
  EXPECT_EQ(Run("--fixed 1.6 --out 膜.ind"), 0);
  EXPECT_EQ(Run("--file 膜.ind --json"), 0);
  EXPECT_EQ(At(640), 1.6);

  const struct {
    const char* arguments;
    const char* name;
    QByteArray content;
  } cases[] = {
      {"--fixed 4 --out a.ref", "a.ref", "Reference"},
      {"--fixed 4 --out a --as-reflectance", "a", "Reference"},
      {"--fixed 4 --out b", "b", "Index"},
      {"--fixed 4 --out a.IND --as-reflectance", "a.IND", "Index"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Run(c.arguments), 0) << c.arguments;
    EXPECT_EQ(FirstLine(c.name), "VEXA-KT 440-840 Ver 3.21 " + c.content + " File\r\n");
  }
}

TEST_F(DispersionCommandLine, FaultsAreAStatusAndNoValues) {
  const struct {
    const char* arguments;
    int status;
  } cases[] = {
      {"--sellmeier 1,0,0,0.36,0,0 --json", 1},  // a pole at 600 nm
      {"--schott -1,0,0,0,0,0 --json", 1},
      {"--file missing.ind --json", 2},
      {"--substrate missing.csv --json --out x.ind", 3},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Run(c.arguments), 1) << c.arguments;
    EXPECT_EQ(Json()[QLatin1String("status")].toInt(), c.status) << c.arguments;
    EXPECT_TRUE(Json()[QLatin1String("values")].isNull()) << c.arguments;
    EXPECT_TRUE(err.contains("vexa-cli: ")) << c.arguments;
  }
  EXPECT_FALSE(QFile::exists(directory.filePath(QStringLiteral("x.ind"))));
  EXPECT_EQ(Run("--fixed 1 --out missing/x.ind"), 1);
}

TEST_F(DispersionCommandLine, TakesExactlyOneWellFormedSource) {
  for (const char* arguments :
       {"--json", "--fixed 1 --file x", "--fixed 1 --fixed 2", "--fixed x", "--fixed 1,2",
        "--schott 1,2,3,4,5", "--sellmeier 1,2,3,4,5,6,7", "--schott 1,2,3,4,5,", "--fixed 1 x"}) {
    EXPECT_EQ(Run(arguments), 2) << arguments;
    EXPECT_EQ(out, "") << arguments;
    EXPECT_EQ(err.count('\n'), 1) << arguments;
  }
}

}  // namespace
}  // namespace vexa

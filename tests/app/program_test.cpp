// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a process: the demonstration, and reports without a display.
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

#include "files/data_file.h"
#include "support/pdf_words.h"
#include "support/scripted_peer.h"
#include "support/spectra.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

class Program : public testing::Test {
 protected:
  // The exit status; "@NAME" among the arguments is one of the files.
  int Run(const char* arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : unset) {
      environment.remove(QLatin1String(name));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(files.Directory());
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa"), files.Words(arguments));
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    complaints = static_cast<int>(process.readAllStandardError().count("vexa: "));
    return process.exitCode();
  }

  const test::TemporaryFiles files;
  std::vector<const char*> unset;  ///< variables that the program does not get
  int complaints = 0;
};

// The index of the coat: lines 40 to 53 of an environment file.
QList<QByteArray> CoatLines(const QByteArray& environment) {
  return environment.split('\n').mid(39, 14);
}

TEST_F(Program, DemonstrationMeasuresFiveSamplesAndLeavesAFileAndAPicture) {
  for (const char* arguments : {"--demo @新しい", "--gpib --demo @次"}) {
    ASSERT_EQ(Run(arguments), 0) << arguments;
    QFile shared(QStringLiteral(VEXA_SHARE_DIR "/virtual-instrument/vexa.env"));
    ASSERT_TRUE(shared.open(QIODevice::ReadOnly));
    const QByteArray name = QByteArray(arguments).split('@').last();
    const QByteArray data = files.Read(name + "/measurement.csv");
    const QList<QByteArray> row = data.split('\n').at(2 + 550 - 440).split(',');
    ASSERT_EQ(row.size(), 11);
    for (int slot = 1; slot <= 10; ++slot) {
      EXPECT_EQ(row[slot].toDouble() > 0.0, slot <= 5) << slot;
    }
    // Bare crown glass, n = 1.5185 at 550 nm: ((n - 1) / (n + 1))^2 = 4.24 %. Its noise at one line
    // is a few hundredths of a percent.
    EXPECT_NEAR(row[1].toDouble(), 4.24, 0.25);
    EXPECT_EQ(CoatLines(files.Read(name + "/vexa.env")), CoatLines(shared.readAll()));
    EXPECT_EQ(QImage(files.Path(name + "/window.png")).size(), QSize(1280, 900));
    EXPECT_FALSE(QFileInfo(files.Path(name + "/com5")).isSymLink());
  }
}

// The records hold what the window has fitted, the command line fits the same stack to the file.
TEST_F(Program, TheWindowAndTheCommandLineFitTheSameThickness) {
  ASSERT_EQ(Run("--demo @d"), 0);
  const auto told = [this](const QStringList& arguments) {
    QProcess process;
    process.setWorkingDirectory(files.Path("d"));
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa-cli"), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
  };
  const QJsonArray fitted =
      told(QStringLiteral("fit measurement.csv --substrate cauchy:1.4855,0.0045 "
                          "--layer cauchy:1.5803,0.00751 --thickness 300-12000 --json")
               .split(u' '))[QLatin1String("slots")]
          .toArray();
  const QJsonArray records = told({QStringLiteral("records"), QStringLiteral("list"),
                                   QStringLiteral("--json")})[QLatin1String("records")]
                                 .toArray();
  ASSERT_EQ(records.size(), fitted.size());
  int films = 0;
  for (qsizetype i = 0; i < fitted.size(); ++i) {
    const QString id = records[records.size() - 1 - i].toObject()[QLatin1String("id")].toString();
    const QJsonObject kept = told({QStringLiteral("records"), QStringLiteral("show"), id,
                                   QStringLiteral("--json")})[QLatin1String("fit")]
                                 .toObject();
    const QJsonObject fit = fitted[i].toObject()[QLatin1String("fit")].toObject();
    EXPECT_EQ(kept[QLatin1String("outcome")], fit[QLatin1String("outcome")]) << i;
    if (fit[QLatin1String("outcome")] == QLatin1String("ok")) {
      ++films;
      const QJsonObject layer = fit[QLatin1String("layers")].toArray()[0].toObject();
      EXPECT_NEAR(kept[QLatin1String("layers")]
                      .toArray()[0]
                      .toObject()[QLatin1String("thickness")]
                      .toDouble(),
                  layer[QLatin1String("thickness")].toDouble(),
                  layer[QLatin1String("statistical")].toDouble());
    }
  }
  EXPECT_GT(films, 0);
}

TEST_F(Program, WrongOptionsAreOneLineAndStatusTwo) {
  for (const char* arguments :
       {"--nonsense", "--demo", "one two", "--demo @x one", "--language fr", "--language"}) {
    EXPECT_EQ(Run(arguments), 2) << arguments;
    EXPECT_EQ(complaints, 1) << arguments;
  }
}

TEST_F(Program, ASignalEndsTheWindowInOrderWithoutAQuestion) {
  test::ScriptedPeer peer;
  QProcess process;
  process.setWorkingDirectory(peer.Directory());
  process.start(QStringLiteral(VEXA_BIN_DIR "/vexa"), QStringList());
  // The sampling time is the last that a start sends.
  const auto started = [&peer] {
    const auto frames = peer.TakeFrames();
    return !frames.empty() && frames.back().starts_with("96");
  };
  ASSERT_TRUE(QTest::qWaitFor(started, 30000));
  process.terminate();
  EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30000));
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.exitCode(), 0);
  EXPECT_FALSE(peer.files.Has("vexa.int")) << "nothing was asked, so nothing is saved";
}

class Report : public Program {
 protected:
  Report() {
    unset = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    VEXATYPE state;
    state.Slot(3)->valid = true;
    state.Slot(3)->reflectance = test::Flat(2.5);
    state.Slot(3)->info.sampleNumber = QStringLiteral("鏡面");
    EXPECT_TRUE(WriteDataFile(files.Path("測定.csv"), DataFileLayout::kCsv, state));
  }
};

TEST_F(Report, IsPrintedWithoutADisplay) {
  EXPECT_EQ(Run("--report @測定.csv --out @報告.pdf --title 受入検査 --operator 佐藤"), 0);
  EXPECT_EQ(complaints, 0);
  const QString text = test::PdfPages(files.Path("報告.pdf")).join(QString());
  for (const char* expected : {"受入検査", "測定者 佐藤", "測定.csv", "3 鏡面", "440 2.500"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << '\n'
                                                            << text.toStdString();
  }
}

TEST_F(Report, SpeaksTheLanguageAskedFor) {
  files.Write("program.json", R"({"showCie": true})");
  EXPECT_EQ(Run("--report @測定.csv --out @報告.pdf --operator 佐藤 --language en"), 0);
  const QString text = test::PdfPages(files.Path("報告.pdf")).join(QString());
  for (const char* expected :
       {"Reflectance measurement", "Operator 佐藤", "3 鏡面", "440 2.500", "CIE colour values"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << '\n'
                                                            << text.toStdString();
  }
}

TEST_F(Report, AFailureIsTalkedAboutAndLosesNothing) {
  const QByteArray spectra = files.Read("測定.csv");
  files.Write("broken.csv", "no data");
  files.Write("報告.pdf", "old");
  const std::pair<const char*, int> cases[] = {
      {"--report @missing.csv --out @報告.pdf", 1},
      {"--report @broken.csv --out @報告.pdf", 1},
      {"--report @測定.csv --out @missing/報告.pdf", 1},
      {"--report @測定.csv --out @", 1},
      {"--report @測定.csv --out @測定.csv", 1},
      {"--report @測定.csv", 2},
      {"--out @報告.pdf --report", 2},
      {"--report @測定.csv --out @報告.pdf --demo @", 2},
  };
  for (const auto& [arguments, status] : cases) {
    EXPECT_EQ(Run(arguments), status) << arguments;
    EXPECT_GE(complaints, 1) << arguments;
  }
  EXPECT_EQ(files.Read("測定.csv"), spectra);
  EXPECT_EQ(files.Read("報告.pdf"), "old");
}

}  // namespace
}  // namespace vexa

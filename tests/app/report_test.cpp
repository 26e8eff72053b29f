// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <algorithm>

#include "files/data_file.h"
#include "support/pdf_words.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

const QString kReport = QStringLiteral("--report");
const QString kOut = QStringLiteral("--out");
const QString kDemo = QStringLiteral("--demo");

class Report : public testing::Test {
 protected:
  Report() {
    VEXATYPE state;
    state.Slot(3)->valid = true;
    std::ranges::fill(state.Slot(3)->reflectance.Values(), 2.5);
    state.Slot(3)->info.sampleNumber = QStringLiteral("鏡面");
    EXPECT_TRUE(WriteDataFile(data, DataFileLayout::kCsv, state));
    directory.Write("broken.csv", "no data");
  }

  // The exit status, without a display.
  int Run(const QStringList& arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
      environment.remove(QLatin1String(name));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory.Directory());
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa"), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    complaints = static_cast<int>(process.readAllStandardError().count("vexa: "));
    return process.exitCode();
  }

  const test::TemporaryFiles directory;
  const QString data = directory.Path("測定.csv");
  const QString out = directory.Path("報告.pdf");
  int complaints = 0;
};

TEST_F(Report, IsPrintedWithoutADisplay) {
  EXPECT_EQ(Run({kReport, data, kOut, out, QStringLiteral("--title"), QStringLiteral("受入検査"),
                 QStringLiteral("--operator"), QStringLiteral("佐藤")}),
            0);
  EXPECT_EQ(complaints, 0);
  const QString text = test::PdfPages(out).join(QString());
  for (const char* expected : {"受入検査", "測定者 佐藤", "測定.csv", "3 鏡面", "440 2.500"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << '\n'
                                                            << text.toStdString();
  }
}

TEST_F(Report, AFailureIsTalkedAboutAndLosesNothing) {
  const QByteArray spectra = directory.Read("測定.csv");
  directory.Write("報告.pdf", "old");
  const struct {
    QStringList arguments;
    int status;
  } cases[] = {
      {{kReport, directory.Path("missing.csv"), kOut, out}, 1},
      {{kReport, directory.Path("broken.csv"), kOut, out}, 1},
      {{kReport, data, kOut, directory.Path("missing/報告.pdf")}, 1},
      {{kReport, data, kOut, directory.Directory()}, 1},
      {{kReport, data, kOut, data}, 1},
      {{kReport, data}, 2},
      {{kOut, out, kReport}, 2},
      {{kReport, data, kOut, out, kDemo, directory.Directory()}, 2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Run(c.arguments), c.status) << c.arguments.join(u' ').toStdString();
    EXPECT_GE(complaints, 1) << c.arguments.join(u' ').toStdString();
  }
  EXPECT_EQ(directory.Read("測定.csv"), spectra);
  EXPECT_EQ(directory.Read("報告.pdf"), "old");
}

}  // namespace
}  // namespace vexa

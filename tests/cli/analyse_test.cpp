// SPDX-License-Identifier: GPL-3.0-or-later
// Analyses of data files and stock files by the command line as a program.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <numbers>

#include "standards/standard_file.h"

namespace vexa {
namespace {

struct Outcome {
  int status = -1;
  QByteArray out;
  QByteArray err;
  [[nodiscard]] QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
  [[nodiscard]] QJsonObject Slot(int index) const {
    return Json()[QLatin1String("slots")].toArray()[index].toObject();
  }
};

QJsonObject Object(const QJsonObject& parent, const char* name) {
  return parent[QLatin1String(name)].toObject();
}

double Number(const QJsonObject& object, const char* name) {
  return object[QLatin1String(name)].toDouble(std::nan(""));
}

class Analysis : public testing::Test {
 protected:
  QString File(const char* name) const { return directory.filePath(QLatin1String(name)); }

  QString Write(const char* name, const QByteArray& content) const {
    QFile file(File(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  // A word "@NAME" among the options is the file of that name in the directory.
  Outcome RunCli(const QString& command, const QString& file, const QString& options) {
    QStringList words = options.split(u' ', Qt::SkipEmptyParts);
    for (QString& word : words) {
      if (word.startsWith(u'@')) {
        word = directory.filePath(word.sliced(1));
      }
    }
    QProcess process;
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa-cli"),
                  QStringList{command, file, QStringLiteral("--dir"), directory.path()} + words);
    EXPECT_TRUE(process.waitForFinished(30000));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }
  Outcome Analyse(const QString& options) {
    return RunCli(QStringLiteral("analyse"), data, options);
  }

  // Slot 1 is flat, slot 2 has the fringes of a film of 2000 nm optical thickness, slot 4 is dark
  // but for where its validity is looked at and the colour has no weight.
  QString WriteData() const {
    QByteArray text = "VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,S-001,S-002,,S-004,,,,,,\r\n";
    for (int nm = 440; nm <= 840; ++nm) {
      const double fringe = 10.0 + 5.0 * std::cos(4.0 * std::numbers::pi * 2000.0 / nm);
      text += QStringLiteral(" %1,20,%2,0,%3,0,0,0,0,0,0\r\n")
                  .arg(nm)
                  .arg(fringe, 0, 'f', 6)
                  .arg(nm == 840 ? 1 : 0)
                  .toLatin1();
    }
    return Write("data.csv", text);
  }

  QTemporaryDir directory{QDir::tempPath() + QStringLiteral("/解 析-XXXXXX")};
  QString data = WriteData();
};

TEST_F(Analysis, ReportsTheColourOfEveryValidSlot) {
  const Outcome outcome = Analyse(QStringLiteral("--json --illuminant D65 --average 500-600"));
  EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
  EXPECT_EQ(outcome.out.count('\n'), 1);
  ASSERT_EQ(outcome.Json()[QLatin1String("slots")].toArray().size(), 3);
  const QJsonObject flat = Object(outcome.Slot(0), "colour");
  EXPECT_EQ(outcome.Slot(0)[QLatin1String("sample")].toString(), QStringLiteral("S-001"));
  EXPECT_TRUE(flat[QLatin1String("ok")].toBool());
  EXPECT_NEAR(Number(flat, "Y"), 20.0, 1e-12);
  EXPECT_NEAR(Number(flat, "Rm"), 20.0, 1e-12);
  EXPECT_NEAR(Number(flat, "L"), 116.0 * std::cbrt(0.2) - 16.0, 1e-12);
  EXPECT_NEAR(Number(flat, "x"), 0.3127, 5e-5) << "the white point of D65";
  EXPECT_FALSE(outcome.Slot(0).contains(QLatin1String("judgement")));
  EXPECT_FALSE(outcome.Slot(0).contains(QLatin1String("thickness")));

  const QJsonObject dark = Object(outcome.Slot(2), "colour");
  EXPECT_FALSE(dark[QLatin1String("ok")].toBool(true));
  EXPECT_TRUE(dark[QLatin1String("L")].isNull() && dark[QLatin1String("Y")].isNull());

  const QJsonObject tungsten =
      Object(Analyse(QStringLiteral("--json --illuminant A --observer 10")).Slot(0), "colour");
  EXPECT_NEAR(Number(tungsten, "x"), 0.45117, 5e-5) << "the white point of A, 10 degrees";

  const QByteArray text = Analyse(QString()).out;
  EXPECT_TRUE(text.startsWith("slot         L         a")) << text.constData();
  EXPECT_EQ(text.count('\n'), 4);
  EXPECT_TRUE(text.contains("  S-002\n"));
}

TEST_F(Analysis, ComputesTheThicknessOnRequest) {
  struct Case {
    const char* options;
    double thicknessNm;
  };
  // Maxima and minima of the fringes are found to half a nanometre.
  const Case cases[] = {{"--type B --thickness-kind optical", 2000.0},
                        {"--type C --thickness-kind optical", 2000.0},
                        {"--type B --index 2.0", 1000.0}};
  for (const Case& c : cases) {
    const Outcome outcome =
        Analyse(QStringLiteral("--json --thickness ") + QLatin1String(c.options));
    const QJsonObject film = Object(outcome.Slot(1), "thickness");
    EXPECT_EQ(film[QLatin1String("status")].toInt(-9), 0) << outcome.err.constData();
    EXPECT_NEAR(Number(film, "thickness"), c.thicknessNm, 0.02 * c.thicknessNm) << c.options;
    EXPECT_FALSE(film[QLatin1String("extrema")].toArray().isEmpty());
    const QJsonObject flat = Object(outcome.Slot(0), "thickness");
    EXPECT_EQ(flat[QLatin1String("status")].toInt(), -1) << "too few extrema";
    EXPECT_TRUE(flat[QLatin1String("thickness")].isNull());
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST_F(Analysis, JudgesWithAStandard) {
  StandardSet standard;
  standard.luminousReflectance = {true, 25.0, 15.0};
  ASSERT_TRUE(WriteStandardFile(File("s.std"), standard, {}, {}));
  const Outcome outcome = Analyse(QStringLiteral("--json --standard @s.std"));
  EXPECT_EQ(outcome.status, 3) << outcome.err.constData();
  const auto panels = [&outcome](int index) {
    return Object(outcome.Slot(index), "judgement")[QLatin1String("panels")].toArray();
  };
  ASSERT_EQ(panels(0).size(), 6);
  EXPECT_TRUE(panels(0)[2].toString().endsWith(QStringLiteral("OK")));
  EXPECT_TRUE(panels(1)[2].toString().endsWith(QStringLiteral("NG")));
  EXPECT_EQ(panels(0)[0].toString(), QString());
  EXPECT_TRUE(Analyse(QStringLiteral("--standard @s.std")).out.contains("slot judgement\n   1 "));

  standard.luminousReflectance.lower = 0.0;
  ASSERT_TRUE(WriteStandardFile(File("s.std"), standard, {}, {}));
  EXPECT_EQ(Analyse(QStringLiteral("--standard @s.std")).status, 0);
  EXPECT_EQ(Analyse(QStringLiteral("--standard @missing.std")).status, 1);
}

TEST_F(Analysis, RefusesWhatItCannotUse) {
  struct Case {
    const char* options;
    int status;
  };
  const Case cases[] = {
      {"--illuminant E", 2},      {"--observer 5", 2},
      {"--average 600-500", 2},   {"--average 439-500", 2},
      {"--average 500", 2},       {"--type D", 2},
      {"--thickness-kind x", 2},  {"--index 1.5 --substrate x", 2},
      {"--index missing.ind", 1}, {"--substrate missing", 1},
      {"--env missing.env", 1},
  };
  for (const Case& c : cases) {
    const Outcome outcome = Analyse(QLatin1String(c.options));
    EXPECT_EQ(outcome.status, c.status) << c.options;
    EXPECT_EQ(outcome.out, "") << c.options;
    EXPECT_NE(outcome.err, "") << c.options;
  }
  EXPECT_EQ(RunCli(QStringLiteral("analyse"), File("missing.csv"), QString()).status, 1);
}

TEST_F(Analysis, ShowsAndRewritesAStockFile) {
  const QByteArray content =
      "VEXA-KT 440-840 Ver3.00 Stock File\r\nFalse\r\n 4 \r\nTrue\r\n 2 \r\n"
      "1.500000,-2.000000,50.000000\r\n0.000000,0.250000,60.000000\r\n";
  const QString path = Write("old.stc", content);
  const Outcome outcome =
      RunCli(QStringLiteral("stock"), path, QStringLiteral("--json --out @out.stc"));
  QFile written(File("out.stc"));
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll(), QByteArray(content).replace("3.00", "3.21"));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.Json(),
            QJsonDocument::fromJson(R"({"read": true, "mode": false, "illuminant": 4,
                "observer": true, "points": [[1.5, -2.0, 50.0], [0.0, 0.25, 60.0]]})")
                .object());
  EXPECT_EQ(RunCli(QStringLiteral("stock"), path, QString()).out,
            "illuminant   4\nobserver     2\n"
            "     point           a*           b*           L*\n"
            "         1     1.500000    -2.000000    50.000000\n"
            "         2     0.000000     0.250000    60.000000\n");

  const Outcome cut = RunCli(QStringLiteral("stock"), Write("cut.stc", content.chopped(12)),
                             QStringLiteral("--json"));
  EXPECT_EQ(cut.status, 1);
  EXPECT_FALSE(cut.Json()[QLatin1String("read")].toBool(true));
  EXPECT_EQ(cut.Json()[QLatin1String("points")].toArray().size(), 1);
  EXPECT_TRUE(cut.err.startsWith("VEXA-KT ｴﾗｰ: ")) << cut.err.constData();
}

}  // namespace
}  // namespace vexa

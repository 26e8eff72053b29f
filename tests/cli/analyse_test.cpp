// SPDX-License-Identifier: GPL-3.0-or-later
// Analyses of data files and stock files by the command line as a program.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "cli/running_programs.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "standards/standard_file.h"

namespace vexa {
namespace {

using test::Outcome;

QJsonObject Object(const QJsonObject& parent, const char* name) {
  return parent[QLatin1String(name)].toObject();
}

double Number(const QJsonObject& object, const char* name) {
  return object[QLatin1String(name)].toDouble(std::nan(""));
}

QJsonObject Slot(const Outcome& outcome, int index) {
  return outcome["slots"].toArray()[index].toObject();
}

class Analysis : public test::CommandLine {
 protected:
  Analysis() { WriteData(); }

  [[nodiscard]] Outcome Analyse(const QByteArray& options) const {
    return Run("analyse @data.csv --dir @ " + options);
  }

  // Slot 1 is flat, slot 2 has the fringes of a film of 2000 nm optical thickness, slot 4 is dark
  // but for where its validity is looked at and the colour has no weight.
  void WriteData() const {
    QByteArray text = "VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,S-001,S-002,,S-004,,,,,,\r\n";
    for (int nm = 440; nm <= 840; ++nm) {
      const double fringe = 10.0 + 5.0 * std::cos(4.0 * std::numbers::pi * 2000.0 / nm);
      text += QStringLiteral(" %1,20,%2,0,%3,0,0,0,0,0,0\r\n")
                  .arg(nm)
                  .arg(fringe, 0, 'f', 6)
                  .arg(nm == 840 ? 1 : 0)
                  .toLatin1();
    }
    files.Write("data.csv", text);
  }
};

TEST_F(Analysis, ReportsTheColourOfEveryValidSlot) {
  const Outcome outcome = Analyse("--json --illuminant D65 --average 500-600");
  EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
  EXPECT_EQ(outcome.out.count('\n'), 1);
  ASSERT_EQ(outcome["slots"].toArray().size(), 3);
  const QJsonObject flat = Object(Slot(outcome, 0), "colour");
  EXPECT_EQ(Slot(outcome, 0)[QLatin1String("sample")].toString(), QStringLiteral("S-001"));
  EXPECT_TRUE(flat[QLatin1String("ok")].toBool());
  EXPECT_NEAR(Number(flat, "Y"), 20.0, 1e-12);
  EXPECT_NEAR(Number(flat, "Rm"), 20.0, 1e-12);
  EXPECT_NEAR(Number(flat, "L"), 116.0 * std::cbrt(0.2) - 16.0, 1e-12);
  EXPECT_NEAR(Number(flat, "x"), 0.3127, 5e-5) << "the white point of D65";
  EXPECT_FALSE(Slot(outcome, 0).contains(QLatin1String("judgement")));
  EXPECT_FALSE(Slot(outcome, 0).contains(QLatin1String("thickness")));

  const QJsonObject dark = Object(Slot(outcome, 2), "colour");
  EXPECT_FALSE(dark[QLatin1String("ok")].toBool(true));
  EXPECT_TRUE(dark[QLatin1String("L")].isNull() && dark[QLatin1String("Y")].isNull());

  const QJsonObject tungsten =
      Object(Slot(Analyse("--json --illuminant A --observer 10"), 0), "colour");
  EXPECT_NEAR(Number(tungsten, "x"), 0.45117, 5e-5) << "the white point of A, 10 degrees";

  const QByteArray text = Analyse({}).out;
  EXPECT_TRUE(text.startsWith("slot         L         a")) << text.constData();
  EXPECT_EQ(text.count('\n'), 4);
  EXPECT_TRUE(text.contains("  S-002\n"));
}

TEST_F(Analysis, ComputesTheThicknessOnRequest) {
  // Maxima and minima of the fringes are found to half a nanometre.
  const std::pair<const char*, double> cases[] = {{"--type B --thickness-kind optical", 2000.0},
                                                  {"--type C --thickness-kind optical", 2000.0},
                                                  {"--type B --index 2.0", 1000.0}};
  for (const auto& [options, thicknessNm] : cases) {
    const Outcome outcome = Analyse(QByteArray("--json --thickness ") + options);
    const QJsonObject film = Object(Slot(outcome, 1), "thickness");
    EXPECT_EQ(film[QLatin1String("status")].toInt(-9), 0) << outcome.err.constData();
    EXPECT_NEAR(Number(film, "thickness"), thicknessNm, 0.02 * thicknessNm) << options;
    EXPECT_FALSE(film[QLatin1String("extrema")].toArray().isEmpty());
    const QJsonObject flat = Object(Slot(outcome, 0), "thickness");
    EXPECT_EQ(flat[QLatin1String("status")].toInt(), -1) << "too few extrema";
    EXPECT_TRUE(flat[QLatin1String("thickness")].isNull());
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST_F(Analysis, AddsTheCieColour) {
  const Outcome outcome = Analyse("--json --cie --illuminant D65 --observer 10");
  const QJsonObject flat = Object(Slot(outcome, 0), "cie");
  EXPECT_EQ(flat[QLatin1String("illuminant")].toString(), QStringLiteral("D65"));
  EXPECT_EQ(flat[QLatin1String("observer")].toInt(), 10);
  EXPECT_NEAR(Number(flat, "Y"), 20.0, 1e-12);
  EXPECT_NEAR(Number(flat, "Rv"), 20.0, 1e-12);
  EXPECT_TRUE(flat[QLatin1String("h")].isNull()) << "a grey has no hue";
  EXPECT_TRUE(Object(Slot(outcome, 2), "cie")[QLatin1String("x")].isNull()) << "black";
  EXPECT_FALSE(Slot(Analyse("--json"), 0).contains(QLatin1String("cie")));
  const QByteArray text = Analyse("--cie --illuminant A").out;
  EXPECT_TRUE(
      text.contains("\nCIE測色値 (A / 2°、Rv は D65 / 2°、440 nm より下は外挿)\nslot         X "))
      << text.constData();
  EXPECT_TRUE(text.simplified().contains(" spread 1 21.97 20.0 7.116 0.4476 0.4074 "))
      << text.constData();
}

TEST_F(Analysis, NoThicknessFromAnIndexThatNobodyGave) {
  files.Write("bare.csv", files.Read("data.csv"));
  const Outcome both = Analyse("--json --thickness --type C --substrate @bare.csv");
  EXPECT_EQ(Object(Slot(both, 1), "thickness")[QLatin1String("status")].toInt(), -3);
  for (const char* index : {"0.099", "10.01", "-1"}) {
    EXPECT_EQ(Analyse(QByteArray("--thickness --index ") + index).status, 2) << index;
  }
}

TEST_F(Analysis, TheEnvironmentOfTheDirectoryCountsWithoutAStartupFile) {
  VEXATYPE settings;
  settings.colour.avgFrom = settings.colour.avgTo = 840;
  ASSERT_TRUE(WriteEnvFile(files.Path("vexa.env"), settings));
  EXPECT_NEAR(Number(Object(Slot(Analyse("--json"), 2), "colour"), "Rm"), 1.0, 1e-12);
}

TEST_F(Analysis, JudgesWithAStandard) {
  StandardSet standard;
  standard.luminousReflectance = {true, 25.0, 15.0};
  ASSERT_TRUE(WriteStandardFile(files.Path("s.std"), {standard, {}, {}}));
  const Outcome outcome = Analyse("--json --standard @s.std");
  EXPECT_EQ(outcome.status, 3) << outcome.err.constData();
  const auto panels = [&outcome](int index) {
    return Object(Slot(outcome, index), "judgement")[QLatin1String("panels")].toArray();
  };
  ASSERT_EQ(panels(0).size(), 6);
  EXPECT_TRUE(panels(0)[2].toString().endsWith(QStringLiteral("OK")));
  EXPECT_TRUE(panels(1)[2].toString().endsWith(QStringLiteral("NG")));
  EXPECT_EQ(panels(0)[0].toString(), QString());
  EXPECT_TRUE(Analyse("--standard @s.std").out.contains("slot judgement\n   1 "));

  standard.luminousReflectance.lower = 0.0;
  ASSERT_TRUE(WriteStandardFile(files.Path("s.std"), {standard, {}, {}}));
  EXPECT_EQ(Analyse("--standard @s.std").status, 3) << "the dark slot has no colour";
  standard.luminousReflectance.enabled = false;
  standard.averageReflectance = {true, 25.0, 0.0};
  ASSERT_TRUE(WriteStandardFile(files.Path("s.std"), {standard, {}, {}}));
  EXPECT_EQ(Analyse("--standard @s.std").status, 0);
  EXPECT_EQ(Analyse("--standard @missing.std").status, 1);

  VEXATYPE directory;
  directory.programDirectory = files.Directory();
  directory.standardFileName = QStringLiteral("s.std");
  ASSERT_TRUE(WriteStartupFile(directory) && WriteEnvFile(files.Path("vexa.env"), directory));
  const Outcome own = Analyse("--json");
  EXPECT_EQ(own.status, 0);
  EXPECT_TRUE(Slot(own, 0).contains(QLatin1String("judgement"))) << "the directory's own standard";
}

TEST_F(Analysis, MissingFilesEndWithStatusOne) {
  for (const char* options :
       {"--index @missing.ind", "--substrate @missing", "--env @missing.env"}) {
    const Outcome outcome = Analyse(options);
    EXPECT_EQ(outcome.status, 1) << options;
    EXPECT_EQ(outcome.out, "") << options;
    EXPECT_NE(outcome.err, "") << options;
  }
  EXPECT_EQ(Run("analyse @missing.csv").status, 1);
}

TEST_F(Analysis, ShowsAndRewritesAStockFile) {
  const QByteArray content =
      "VEXA-KT 440-840 Ver3.00 Stock File\r\nFalse\r\n 4 \r\nTrue\r\n 2 \r\n"
      "1.500000,-2.000000,50.000000\r\n0.000000,0.250000,60.000000\r\n";
  files.Write("old.stc", content);
  const Outcome outcome = Run("stock @old.stc --json --out @out.stc");
  EXPECT_EQ(files.Read("out.stc"), QByteArray(content).replace("3.00", "3.21"));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.Json(), test::Object(R"({"read": true, "mode": false, "illuminant": 4,
                "observer": true, "points": [[1.5, -2.0, 50.0], [0.0, 0.25, 60.0]]})"));
  EXPECT_EQ(Run("stock @old.stc").out,
            "illuminant   4\nobserver     2\n"
            "     point           a*           b*           L*\n"
            "         1     1.500000    -2.000000    50.000000\n"
            "         2     0.000000     0.250000    60.000000\n");

  files.Write("cut.stc", content.chopped(12));
  const Outcome cut = Run("stock @cut.stc --json");
  EXPECT_EQ(cut.status, 1);
  EXPECT_FALSE(cut["read"].toBool(true));
  EXPECT_EQ(cut["points"].toArray().size(), 0);
  EXPECT_TRUE(cut.err.startsWith("VEXA-KT ｴﾗｰ: ")) << cut.err.constData();
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// The commands judge and standard, as a program.
#include <gtest/gtest.h>

#include <QFile>

#include "cli/running_programs.h"
#include "files/data_file.h"
#include "standards/standard_file.h"
#include "support/spectra.h"

namespace vexa {
namespace {

using test::Object;
using test::Outcome;

class Judging : public test::CommandLine {
 protected:
  Judging() {
    // Slot 1 has 1 % everywhere, slot 3 a step to 3 % from 600 nm.
    for (const int number : {1, 3}) {
      MeasurementSlot& slot = *state.Slot(number);
      slot.valid = true;
      slot.info.sampleNumber = QStringLiteral("ﾚﾝｽﾞ%1").arg(number);
      slot.reflectance =
          test::SpectrumOf([number](int nm) { return number == 3 && nm >= 600 ? 3.0 : 1.0; });
    }
    EXPECT_TRUE(WriteDataFile(files.Path("data.csv"), DataFileLayout::kCsv, state));
    state.standard.useReflectance = true;
    state.standard.wavelengths = {500, 700};
    state.standard.conditions[0] = {true, 2.0, 0.0};
    state.standard.conditions[1] = {true, 2.0, 0.5};
    WriteStandard();
  }

  void WriteStandard() const {
    ASSERT_TRUE(WriteStandardFile(files.Path("a.std"),
                                  {state.standard, state.chromaMarker, state.hueMarker}));
  }
  [[nodiscard]] Outcome Judge(const QByteArray& arguments = {}) const {
    return Run("judge @data.csv --standard @a.std --dir @ " + arguments);
  }

  VEXATYPE state;
};

TEST_F(Judging, OnlyTextsDependOnTheLanguage) {
  EXPECT_EQ(Judge("--language en").out.toStdString(),
            " 1  ﾚﾝｽﾞ1  Refl.: OK +0.500 % (700 nm)\n"
            " 3  ﾚﾝｽﾞ3  Refl.: NG -1.000 % (600 nm)\n");
  EXPECT_EQ(Judge("--language=ja").out, Judge().out);
  for (const QByteArray command :
       {"judge @data.csv --standard @a.std --json", "analyse @data.csv --standard @a.std --json",
        "convert @data.csv @out.csv", "convert @data.csv @out.dat",
        "standard @a.std --out @out.std"}) {
    // Each time into a new file: an existing one is asked about.
    QByteArray written[2];
    for (const int english : {0, 1}) {
      const Outcome outcome = Run((english ? "--language en " : "--language ja ") + command);
      EXPECT_NE(outcome.status, 2) << outcome.err.constData();
      written[english] = outcome.out;
      if (const qsizetype out = command.indexOf("@out"); out >= 0) {
        const QByteArray name = command.mid(out + 1);
        written[english] = files.Read(name);
        ASSERT_TRUE(QFile::remove(files.Path(name)));
      }
    }
    EXPECT_FALSE(written[0].isEmpty()) << command.constData();
    EXPECT_EQ(written[0], written[1]) << command.constData();
  }
  for (const char* wrong : {"--language fr", "--language", "--language="}) {
    const Outcome outcome = Judge(wrong);
    EXPECT_EQ(outcome.status, 2) << wrong;
    EXPECT_EQ(outcome.err.count('\n'), 1) << wrong;
  }
}

TEST_F(Judging, TellsVerdictsAndMargins) {
  const Outcome text = Judge();
  EXPECT_EQ(text.status, 3);
  EXPECT_EQ(text.err, "");
  EXPECT_EQ(text.out.toStdString(),
            " 1  ﾚﾝｽﾞ1  反射率:OK +0.500 % (700 nm)\n"
            " 3  ﾚﾝｽﾞ3  反射率:NG -1.000 % (600 nm)\n");
  const Outcome json = Judge("--json");
  EXPECT_EQ(json.status, 3);
  ASSERT_EQ(json["slots"].toArray().size(), 2);
  EXPECT_EQ(json["slots"].toArray()[1], Object(R"({"slot": 3, "sample": "ﾚﾝｽﾞ3", "judgement":
      {"panels": ["反射率:NG", "", "", "", "", ""], "reflectance": false}})"));

  state.standard.conditions[0].upper = state.standard.conditions[1].upper = 3.0;
  state.standard.averageReflectance = {true, 5.0, 0.0};
  WriteStandard();
  EXPECT_EQ(Judge().status, 0) << "an inclusive limit";
  EXPECT_TRUE(Judge().out.contains("反射率:OK +0.000 % (600 nm)  平均反射率:OK +"));
}

TEST_F(Judging, StandardsThatAreOffOrOddAreSafe) {
  state.standard = {};
  WriteStandard();
  EXPECT_EQ(Judge().status, 0);
  EXPECT_EQ(Judge().out.toStdString(), " 1  ﾚﾝｽﾞ1\n 3  ﾚﾝｽﾞ3\n");

  state.standard.useReflectance = true;
  state.standard.conditions[0].enabled = true;
  state.standard.wavelengths[0] = 900;
  WriteStandard();
  EXPECT_EQ(Judge().status, 3);
  EXPECT_EQ(Judge().out.toStdString(), " 1  ﾚﾝｽﾞ1  反射率:NG\n 3  ﾚﾝｽﾞ3  反射率:NG\n");
}

TEST_F(Judging, UnreadableFilesEndWithStatusOne) {
  const Outcome missing = Run("judge @missing.csv --standard @a.std --language en");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "");
  EXPECT_TRUE(missing.err.contains("missing.csv: cannot be read\n"));
  files.Write("a.std", "VEXA-KT 440-840 Ver 2.99 Standard File\r\n");
  const Outcome old = Judge("--json");
  EXPECT_EQ(old.status, 1);
  EXPECT_EQ(old.out, "");
  EXPECT_TRUE(old.err.startsWith("VEXA-KT: 規格ﾌｧｲﾙ名:")) << old.err.constData();
  const Outcome shown = Run("standard @a.std --json");
  EXPECT_EQ(shown.status, 1);
  EXPECT_EQ(shown.out, "{\"read\":false}\n");
}

TEST_F(Judging, StandardShowsAndRewritesAFile) {
  state.standard.wavelengthValue = {{true, 600.0, 500.0}, 0};
  state.hueMarker = {true, 123.456789};
  WriteStandard();
  const Outcome json = Run("standard @a.std --json --out @b.std");
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.err, "");
  EXPECT_EQ(json["conditions"].toArray().size(), 10);
  EXPECT_EQ(json["conditions"].toArray()[1],
            Object(R"({"enabled": true, "wavelength": 700, "upper": 2, "lower": 0.5})"));
  EXPECT_EQ(json["wavelengthValue"],
            Object(R"({"enabled": true, "peak": false, "upper": 600, "lower": 500})"));
  EXPECT_EQ(json["hueMarker"], Object(R"({"show": true, "value": 123.456789})"));
  EXPECT_EQ(files.Read("a.std"), files.Read("b.std"));

  EXPECT_EQ(Run("standard @a.std --out @missing/b.std").status, 1);
  const Outcome text = Run("standard @a.std");
  EXPECT_EQ(text.status, 0);
  EXPECT_TRUE(text.out.contains("条件２      on    0.5 ..       2    700 nm\n"))
      << text.out.constData();
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// The commands judge and standard, as a program.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "files/data_file.h"
#include "standards/standard_file.h"

namespace vexa {
namespace {

constexpr int kTimeoutMs = 30000;

class Judging : public testing::Test {
 protected:
  Judging() {
    // Slot 1 has 1 % everywhere, slot 3 a step to 3 % from 600 nm.
    for (const int number : {1, 3}) {
      MeasurementSlot& slot = *state.Slot(number);
      slot.valid = true;
      slot.info.sampleNumber = QStringLiteral("ﾚﾝｽﾞ%1").arg(number);
      for (int nm = 440; nm <= 840; ++nm) {
        slot.reflectance[nm] = number == 3 && nm >= 600 ? 3.0 : 1.0;
      }
    }
    EXPECT_TRUE(WriteDataFile(File("data.csv"), DataFileLayout::kCsv, state));
    state.standard.useReflectance = true;
    state.standard.wavelengths = {500, 700};
    state.standard.conditions[0] = {true, 2.0, 0.0};
    state.standard.conditions[1] = {true, 2.0, 0.5};
    WriteStandard();
  }

  void WriteStandard() {
    ASSERT_TRUE(
        WriteStandardFile(File("a.std"), state.standard, state.chromaMarker, state.hueMarker));
  }
  QString File(const char* name) const { return directory.filePath(QLatin1String(name)); }

  int Run(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(VEXA_BIN_DIR "/vexa-cli"),
                  arguments + QStringList{QStringLiteral("--dir"), directory.path()});
    EXPECT_TRUE(process.waitForFinished(kTimeoutMs));
    out = process.readAllStandardOutput();
    err = process.readAllStandardError();
    return process.exitCode();
  }
  int Judge(const char* data, const QStringList& more = {}) {
    return Run(QStringList{QStringLiteral("judge"), File(data), QStringLiteral("--standard"),
                           File("a.std")} +
               more);
  }
  [[nodiscard]] QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }

  QTemporaryDir directory{QDir::tempPath() + QStringLiteral("/測 定-XXXXXX")};
  VEXATYPE state;
  QByteArray out;
  QByteArray err;
};

TEST_F(Judging, TellsVerdictsAndMargins) {
  EXPECT_EQ(Judge("data.csv"), 3);
  EXPECT_EQ(err, "");
  EXPECT_EQ(out.toStdString(),
            " 1  ﾚﾝｽﾞ1  反射率:OK +0.500 % (700 nm)\n"
            " 3  ﾚﾝｽﾞ3  反射率:NG -1.000 % (600 nm)\n");
  EXPECT_EQ(Judge("data.csv", {QStringLiteral("--json")}), 3);
  const QJsonArray slots_ = Json()[QLatin1String("slots")].toArray();
  ASSERT_EQ(slots_.size(), 2);
  EXPECT_EQ(QJsonDocument(slots_[1].toObject()).toJson(QJsonDocument::Compact).toStdString(),
            R"({"judgement":{"panels":["反射率:NG","","","","",""],"reflectance":false},)"
            R"("sample":"ﾚﾝｽﾞ3","slot":3})");

  state.standard.conditions[0].upper = state.standard.conditions[1].upper = 3.0;
  state.standard.averageReflectance = {true, 5.0, 0.0};
  WriteStandard();
  EXPECT_EQ(Judge("data.csv"), 0) << "an inclusive limit";
  EXPECT_TRUE(out.contains("反射率:OK +0.000 % (600 nm)  平均反射率:OK +"));
}

TEST_F(Judging, StandardsThatAreOffOrOddAreSafe) {
  state.standard = {};
  WriteStandard();
  EXPECT_EQ(Judge("data.csv"), 0);
  EXPECT_EQ(out.toStdString(), " 1  ﾚﾝｽﾞ1\n 3  ﾚﾝｽﾞ3\n");

  state.standard.useReflectance = true;
  state.standard.conditions[0].enabled = true;
  state.standard.wavelengths[0] = 900;
  WriteStandard();
  EXPECT_EQ(Judge("data.csv"), 3);
  EXPECT_EQ(out.toStdString(), " 1  ﾚﾝｽﾞ1  反射率:NG\n 3  ﾚﾝｽﾞ3  反射率:NG\n");
}

TEST_F(Judging, UnreadableFilesEndWithStatusOne) {
  EXPECT_EQ(Judge("missing.csv"), 1);
  EXPECT_EQ(out, "");
  EXPECT_TRUE(err.contains("missing.csv: no data file was read\n"));
  QFile old(File("a.std"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("VEXA-KT 440-840 Ver 2.99 Standard File\r\n");
  old.close();
  EXPECT_EQ(Judge("data.csv", {QStringLiteral("--json")}), 1);
  EXPECT_EQ(out, "");
  EXPECT_TRUE(err.startsWith("VEXA-KT: 規格ﾌｧｲﾙ名:")) << err.constData();
  EXPECT_EQ(Run({QStringLiteral("standard"), File("a.std"), QStringLiteral("--json")}), 1);
  EXPECT_EQ(out, "{\"read\":false}\n");
  EXPECT_EQ(Run({QStringLiteral("judge"), File("data.csv")}), 2);
}

TEST_F(Judging, StandardShowsAndRewritesAFile) {
  state.standard.wavelengthValue = {{true, 600.0, 500.0}, 0};
  state.hueMarker = {true, 123.456789};
  WriteStandard();
  const QStringList command{QStringLiteral("standard"), File("a.std")};
  EXPECT_EQ(
      Run(command + QStringList{QStringLiteral("--json"), QStringLiteral("--out"), File("b.std")}),
      0);
  EXPECT_EQ(err, "");
  const QJsonObject json = Json();
  EXPECT_EQ(json[QLatin1String("conditions")].toArray().size(), 10);
  EXPECT_EQ(
      json[QLatin1String("conditions")].toArray()[1],
      QJsonDocument::fromJson(R"({"enabled": true, "wavelength": 700, "upper": 2, "lower": 0.5})")
          .object());
  EXPECT_EQ(
      json[QLatin1String("wavelengthValue")],
      QJsonDocument::fromJson(R"({"enabled": true, "peak": false, "upper": 600, "lower": 500})")
          .object());
  EXPECT_EQ(json[QLatin1String("hueMarker")],
            QJsonDocument::fromJson(R"({"show": true, "value": 123.456789})").object());
  QFile a(File("a.std"));
  QFile b(File("b.std"));
  ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
  EXPECT_EQ(a.readAll(), b.readAll());

  EXPECT_EQ(Run(command + QStringList{QStringLiteral("--out"), File("missing/b.std")}), 1);
  EXPECT_EQ(Run(command), 0);
  EXPECT_TRUE(out.contains("条件２      on    0.5 ..       2    700 nm\n")) << out.constData();
}

}  // namespace
}  // namespace vexa

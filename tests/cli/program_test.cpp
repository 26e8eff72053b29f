// SPDX-License-Identifier: GPL-3.0-or-later
// The command line as a program: exact output, exit status, and the virtual instrument at the other
// end of the link.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/running_programs.h"

namespace vexa {
namespace {

using test::CommandLine;
using test::kTimeoutMs;
using test::Outcome;
using test::RunCli;
using test::WithInstrument;
using test::Words;

TEST_F(CommandLine, WrongUsageIsOneLineAndStatusTwo) {
  const char* const cases[] = {
      "",
      "nonsense",
      "decode",
      "decode a b",
      "decode a --start x",
      "decode a --positions 1,2,3",
      "decode a --nonsense",
      "reflectance",
      "reflectance --background a --reference b",
      "reflectance --background a --reference b --sample c --shift 8",
      "measure --port 5",
      "measure --out x.csv",
      "measure --port -1 --out x.csv --samples 1",
      "measure --port 5 --out x.csv --samples 11",
      "measure --port 5 --out x.csv --averaging 17",
      "measure --port 5 --out x.csv --sampling-time 29",
      "measure --port 5 --out x.csv stray",
  };
  for (const char* arguments : cases) {
    const Outcome outcome = RunCli(Words(arguments));
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_TRUE(outcome.err.startsWith("vexa-cli: ")) << arguments;
    EXPECT_EQ(outcome.err.count('\n'), 1) << arguments << ": " << outcome.err.constData();
  }
}

TEST_F(CommandLine, DecodesLines) {
  const Outcome json =
      RunCli({QStringLiteral("decode"), Lines("flat.bin", 0x123, 16), QStringLiteral("--json")});
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.err, "");
  EXPECT_EQ(json.out.count('\n'), 1);
  EXPECT_EQ(json.Json()[QLatin1String("start")].toInt(), 440);
  const QJsonArray values = json.Json()[QLatin1String("values")].toArray();
  ASSERT_EQ(values.size(), 409);
  EXPECT_EQ(values[100].toDouble(), 0x123);

  const Outcome text = RunCli({QStringLiteral("decode"), Lines("flat.bin", 7)});
  EXPECT_TRUE(text.out.startsWith(" 440       7.0000\n")) << text.out.left(40).constData();

  const Outcome raw =
      RunCli({QStringLiteral("decode"), Lines("flat.bin", 7), QStringLiteral("--json"),
              QStringLiteral("--positions"), QStringLiteral("0,1,2,3,4,511")});
  EXPECT_EQ(raw.Json()[QLatin1String("start")].toInt(-1), 0);
  EXPECT_EQ(raw.Json()[QLatin1String("values")].toArray().size(), 512);

  const Outcome saturated =
      RunCli({QStringLiteral("decode"), Lines("s.bin", 4095), QStringLiteral("--json")});
  EXPECT_EQ(saturated.status, 1);
  EXPECT_EQ(saturated.Json()[QLatin1String("status")].toInt(), 1);
}

TEST_F(CommandLine, RefusesFilesThatAreNoLines) {
  QFile odd(File("odd.bin"));
  ASSERT_TRUE(odd.open(QIODevice::WriteOnly));
  odd.write(QByteArray(1025, 'x'));
  odd.close();
  for (const QString& path : {File("missing.bin"), odd.fileName(), Lines("many.bin", 1, 17),
                              Lines("none.bin", 1, 0), directory.path()}) {
    const Outcome outcome = RunCli({QStringLiteral("decode"), path, QStringLiteral("--json")});
    EXPECT_EQ(outcome.status, 1) << qPrintable(path);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.contains(path.toUtf8()));
  }
}

TEST_F(CommandLine, ComputesReflectance) {
  const QStringList frames{QStringLiteral("reflectance"),
                           QStringLiteral("--background"),
                           Lines("b", 100),
                           QStringLiteral("--reference"),
                           Lines("r", 500),
                           QStringLiteral("--sample"),
                           Lines("s", 300),
                           QStringLiteral("--json")};
  // The built-in reference is a glass of nd 1.51633: 4.21 % at 588 nm, of which this is the half.
  const Outcome glass = RunCli(frames + QStringList{QStringLiteral("--dir"), directory.path()});
  EXPECT_EQ(glass.status, 0);
  EXPECT_NEAR(glass.Json()[QLatin1String("values")].toArray()[588 - 440].toDouble(), 2.105, 0.002);
  EXPECT_EQ(glass.Json()[QLatin1String("first")].toInt(), 440);
  const Outcome ten =
      RunCli(frames + QStringList{QStringLiteral("--reference-reflectance"), QStringLiteral("10")});
  EXPECT_EQ(ten.Json()[QLatin1String("values")].toArray()[0].toDouble(), 5.0);
}

TEST_F(CommandLine, ConvertsOneFileOrMany) {
  QByteArray text = "VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,a,,,,,,,,,\r\n";
  for (int nm = 440; nm <= 840; ++nm) {
    text += " " + QByteArray::number(nm) + ",1.250000000000000" +
            QByteArray(",0.000000000000000").repeated(9) + "\r\n";
  }
  QStringList all{QStringLiteral("convert")};
  for (int i = 0; i < 100; ++i) {
    QFile file(File(qPrintable(QStringLiteral("in%1.csv").arg(i))));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    all << file.fileName();
  }
  ASSERT_TRUE(QDir(directory.path()).mkdir(QStringLiteral("出力")));
  const QString output = directory.filePath(QStringLiteral("出力"));
  const Outcome many = RunCli(all + QStringList{output, QStringLiteral("--json")});
  EXPECT_EQ(many.status, 0) << many.err.constData();
  EXPECT_EQ(many.Json()[QLatin1String("written")].toInt(), 100);
  QFile last(output + QStringLiteral("/in99.csv"));
  ASSERT_TRUE(last.open(QIODevice::ReadOnly));
  EXPECT_EQ(last.readAll().toStdString(), text.toStdString());

  const QString blocks = File("out.dat");
  EXPECT_EQ(RunCli({QStringLiteral("convert"), all[1], blocks}).status, 0);
  const Outcome back = RunCli({QStringLiteral("convert"), blocks, File("back.csv")});
  EXPECT_EQ(back.status, 0);
  EXPECT_EQ(back.err.toStdString(),
            "VEXA-KT:  1ﾃﾞｰﾀをひらくためﾃﾞｰﾀ１～ﾃﾞｰﾀ 1までのﾃﾞｰﾀが消去されます。\n");
  EXPECT_EQ(
      RunCli({QStringLiteral("convert"), blocks, File("x.csv"), QStringLiteral("--no")}).status, 1);
  EXPECT_EQ(RunCli({QStringLiteral("convert"), all[1], all[2], File("x.csv")}).status, 2);
  EXPECT_EQ(RunCli({QStringLiteral("convert"), File("missing.csv"), File("x.csv")}).status, 1);
}

TEST_F(CommandLine, ShowsAndRewritesEnvironments) {
  const QString out = File("b.env");
  QFile file(File("a.env"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("VEXA-KT 440-840 Ver 3.21 Environment File\r\nnone");
  file.close();
  const Outcome bad = RunCli({QStringLiteral("env"), file.fileName(), QStringLiteral("--json")});
  EXPECT_EQ(bad.status, 1);
  EXPECT_FALSE(bad.Json()[QLatin1String("read")].toBool(true));
}

TEST_F(WithInstrument, MeasuresAWholeDayOfSamples) {
  Start({});
  const Outcome outcome = Measure("--samples 10 --averaging 15 --sampling-time 400");
  EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.Json()[QLatin1String("samples")].toArray().size(), 10);
  QFile file(File("out.csv"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().count("\r\n"), 403);
}

struct FaultCase {
  const char* options;
  const char* json;  ///< the whole report but the file
  const char* messages;
};

// The exchanges of a run: 1..5 initialise, 6 sampling, 7..12 background, 13..16 reference, 17..20
// sample.
TEST_F(WithInstrument, EveryFaultEndsInItsStatusAndMessageAndTheNextRunWorks) {
  const char* const kFailed = "VEXA-KT ﾜｰﾆﾝｸﾞ: データ取得でエラーが発生しました。\n";
  const char* const kSaturated = "VEXA-KT ﾜｰﾆﾝｸﾞ: 取り込んだﾃﾞｰﾀが飽和しています。\n";
  const char* const kDevice = "ｺﾝﾄﾛｰﾗｴﾗｰ: 通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。\n";
  const char* const kGood = R"({"initialise":0,"background":0,"reference":0,"samples":[0]})";
  const char* const kBad15 = R"({"initialise":0,"background":-15,"reference":null,"samples":[]})";
  const char* const kBad3 = R"({"initialise":0,"background":-3,"reference":null,"samples":[]})";
  const char* const kBad4 = R"({"initialise":0,"background":-4,"reference":null,"samples":[]})";
  const FaultCase cases[] = {
      {"no-reply@1", R"({"initialise":-15,"background":null,"reference":null,"samples":[]})",
       kDevice},
      {"no-reply@7", kBad15, kFailed},
      {"error-reply@9", kBad3, kFailed},
      {"short-line@10", kBad4, kFailed},
      {"late-bytes@9", kBad15, kFailed},
      {"byte-by-byte@9", kGood, ""},
      {"split-terminator@10", kGood, ""},
      {"noise-before@10", kBad4, kFailed},
      {"saturation@15", R"({"initialise":0,"background":0,"reference":1,"samples":[]})",
       kSaturated},
      {"saturation@19", R"({"initialise":0,"background":0,"reference":0,"samples":[1]})",
       kSaturated},
      {"unplug@9", kBad3, kFailed},
      {"unplug@19", R"({"initialise":0,"background":0,"reference":0,"samples":[-4]})", kFailed},
  };
  for (const FaultCase& fault : cases) {
    SCOPED_TRACE(fault.options);
    Start({QStringLiteral("--fault"), QLatin1String(fault.options), QStringLiteral("--replug"),
           QStringLiteral("50")});
    const Outcome outcome = Measure("--reply-timeout 400 --sampling-time 400");
    QJsonObject report = outcome.Json();
    report.remove(QLatin1String("file"));
    EXPECT_EQ(report, QJsonDocument::fromJson(fault.json).object()) << outcome.out.constData();
    EXPECT_EQ(outcome.err.toStdString(), fault.messages);
    EXPECT_EQ(outcome.status, *fault.messages == '\0' ? 0 : 1);
    while (!QFile::exists(File("com5"))) {
      ASSERT_TRUE(instrument.waitForReadyRead(kTimeoutMs)) << "the port comes back";
    }
    EXPECT_EQ(Measure("--sampling-time 400").status, 0);
    Stop();
    EXPECT_FALSE(QFile::exists(File("com5")));
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// The command line as a program: exact output, exit status, and the virtual instrument at the other
// end of the link.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <tuple>

#include "cli/running_programs.h"

namespace vexa {
namespace {

using test::CommandLine;
using test::Object;
using test::Outcome;
using test::WithInstrument;

const QRegularExpression kJapanese(QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}]"));

// Detector lines of one value.
QByteArray Lines(int value, int count = 1) {
  const char pixel[] = {static_cast<char>(value & 0xff), static_cast<char>(value >> 8)};
  return QByteArray(pixel, 2).repeated(512 * count);
}

TEST_F(CommandLine, WrongUsageIsOneLineAndStatusTwo) {
  const std::pair<const char*, std::vector<const char*>> cases[] = {
      {"", {""}},
      {"nonsense", {""}},
      {"decode", {"", "a b", "a --start x", "a --positions 1,2,3", "a --nonsense"}},
      {"reflectance",
       {"", "--background a --reference b", "--background a --reference b --sample c --shift 8"}},
      {"measure", {"--port 5", "--out x.csv", "--port -1 --out x.csv --samples 1"}},
      {"measure --port 5 --out x.csv",
       {"--samples 11", "--averaging 17", "--sampling-time 29", "--device x", "--dir nowhere",
        "stray"}},
      {"judge", {"a.csv"}},
      {"convert", {"a.csv b.csv x.csv"}},
      {"dispersion",
       {"--json", "--fixed 1 --file x", "--fixed 1 --fixed 2", "--fixed x", "--fixed 1,2",
        "--schott 1,2,3,4,5", "--sellmeier 1,2,3,4,5,6,7", "--schott 1,2,3,4,5,", "--fixed 1 x"}},
      {"analyse a",
       {"--illuminant E", "--observer 5", "--average 600-500", "--average 439-500", "--average 500",
        "--type D", "--thickness-kind x", "--index 1.5 --substrate x"}},
  };
  for (const auto& [command, wrong] : cases) {
    for (const char* words : wrong) {
      const QByteArray arguments = QByteArray(command) + ' ' + words;
      const Outcome outcome = Run(arguments);
      EXPECT_EQ(outcome.status, 2) << arguments.constData();
      EXPECT_EQ(outcome.out, "") << arguments.constData();
      EXPECT_TRUE(outcome.err.startsWith("vexa-cli: ")) << arguments.constData();
      EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.constData();
      EXPECT_TRUE(QString::fromUtf8(outcome.err).contains(kJapanese)) << outcome.err.constData();
      const QByteArray english =
          Run(QByteArray(arguments).replace("--json", "") + " --language en").err;
      EXPECT_FALSE(QString::fromUtf8(english).contains(kJapanese)) << english.constData();
    }
  }
}

TEST_F(CommandLine, HelpIsInTheLanguageAskedFor) {
  // An option, or a command of the overview, and what it does.
  static const QRegularExpression kEntry(QStringLiteral("^  (-\\S.*|[a-z]\\S*|[A-Z]+)  +\\S"),
                                         QRegularExpression::MultilineOption);
  for (const char* command :
       {"", "analyse", "convert", "decode", "dispersion", "env", "fit", "judge", "measure",
        "records", "reflectance", "standard", "statistics", "stock"}) {
    const QByteArray arguments = QByteArray(command) + " --help --language ";
    const QString english = QString::fromUtf8(Run(arguments + "en").out);
    EXPECT_FALSE(english.contains(kJapanese)) << english.toStdString();
    EXPECT_GE(english.count(kEntry), 6) << english.toStdString();
    const Outcome japanese = Run(arguments + "ja");
    EXPECT_EQ(japanese.status, 0);
    EXPECT_EQ(japanese.out, Run(QByteArray(command) + " --help").out) << "the default";
    for (const QString& line : QString::fromUtf8(japanese.out).split(u'\n')) {
      EXPECT_TRUE(!line.contains(kEntry) || line.contains(kJapanese)) << line.toStdString();
    }
  }
}

TEST_F(CommandLine, EndsOfARangeBelongToIt) {
  for (const char* options :
       {"--sampling-time 30", "--sampling-time 20000", "--averaging 1", "--averaging 16",
        "--samples 1", "--samples 10", "--shift 0", "--shift 7", "--reply-timeout 1"}) {
    EXPECT_EQ(Run(QByteArray("measure --device @nothing --out @x.csv ") + options).status, 1)
        << options;
  }
}

TEST_F(CommandLine, DecodesLines) {
  files.Write("many.bin", Lines(0x123, 16));
  files.Write("one.bin", Lines(7));
  files.Write("full.bin", Lines(4095));
  const Outcome json = Run("decode @many.bin --json");
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.err, "");
  EXPECT_EQ(json.out.count('\n'), 1);
  EXPECT_EQ(json["start"].toInt(), 440);
  ASSERT_EQ(json["values"].toArray().size(), 409);
  EXPECT_EQ(json["values"].toArray()[100].toDouble(), 0x123);

  const Outcome text = Run("decode @one.bin");
  EXPECT_TRUE(text.out.startsWith(" 440       7.0000\n")) << text.out.left(40).constData();

  const Outcome raw = Run("decode @one.bin --json --positions 0,1,2,3,4,511");
  EXPECT_EQ(raw["start"].toInt(-1), 0);
  EXPECT_EQ(raw["values"].toArray().size(), 512);

  const Outcome saturated = Run("decode @full.bin --json");
  EXPECT_EQ(saturated.status, 1);
  EXPECT_EQ(saturated["status"].toInt(), 1);
}

TEST_F(CommandLine, RefusesFilesThatAreNoLines) {
  files.Write("odd.bin", QByteArray(1025, 'x'));
  files.Write("many.bin", Lines(1, 17));
  files.Write("none.bin", "");
  for (const char* name : {"missing.bin", "odd.bin", "many.bin", "none.bin", ""}) {
    const Outcome outcome = Run(QByteArray("decode --json @") + name);
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.contains(files.Path(name).toUtf8())) << name;
  }
}

TEST_F(CommandLine, ComputesReflectance) {
  files.Write("b", Lines(100));
  files.Write("r", Lines(500));
  files.Write("s", Lines(300));
  const QByteArray frames = "reflectance --background @b --reference @r --sample @s --json ";
  // The built-in reference is a glass of nd 1.51633: 4.21 % at 588 nm, of which this is the half.
  const Outcome glass = Run(frames + "--dir @");
  EXPECT_EQ(glass.status, 0);
  EXPECT_NEAR(glass["values"].toArray()[588 - 440].toDouble(), 2.105, 0.002);
  EXPECT_EQ(glass["first"].toInt(), 440);
  const Outcome ten = Run(frames + "--reference-reflectance 10");
  EXPECT_EQ(ten["values"].toArray()[0].toDouble(), 5.0);
}

TEST_F(CommandLine, ConvertsOneFileOrMany) {
  QByteArray text = "VEXA-KT 440-840 Ver 3.21 Data File\r\nwave,a,,,,,,,,,\r\n";
  for (int nm = 440; nm <= 840; ++nm) {
    text += " " + QByteArray::number(nm) + ",1.250000000000000" +
            QByteArray(",0.000000000000000").repeated(9) + "\r\n";
  }
  QByteArray all;
  for (int i = 0; i < 100; ++i) {
    const QByteArray name = "in" + QByteArray::number(i) + ".csv";
    files.Write(name, text);
    all += " @" + name;
  }
  ASSERT_TRUE(QDir(files.Directory()).mkdir(QStringLiteral("出力")));
  const Outcome many = Run("convert" + all + " @出力 --json");
  EXPECT_EQ(many.status, 0) << many.err.constData();
  EXPECT_EQ(many["written"].toInt(), 100);
  EXPECT_EQ(files.Read("出力/in99.csv").toStdString(), text.toStdString());

  EXPECT_EQ(Run("convert @in0.csv @out.dat").status, 0);
  const Outcome back = Run("convert @out.dat @back.csv --no");
  EXPECT_EQ(back.status, 0);
  EXPECT_EQ(back.err, "") << "nothing is lost, so nothing is asked";
  EXPECT_EQ(Run("convert @missing.csv @x.csv").status, 1);
}

TEST_F(CommandLine, TellsThatAnEnvironmentIsUnreadable) {
  files.Write("a.env", "VEXA-KT 440-840 Ver 3.21 Environment File\r\nnone");
  const Outcome bad = Run("env @a.env --json");
  EXPECT_EQ(bad.status, 1);
  EXPECT_FALSE(bad["read"].toBool(true));
}

TEST_F(WithInstrument, MeasuresAWholeDayOfSamples) {
  Start({});
  const Outcome outcome = Measure("--samples 10 --averaging 15 --sampling-time 400");
  EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome["samples"].toArray().size(), 10);
  EXPECT_EQ(files.Read("out.csv").count("\r\n"), 403);
}

// Type B at 10 s without noise: docs/accuracy.md states 12.4 and 25.8 nm as the method's own
// limits.
TEST_F(WithInstrument, ItsSettingsGiveTheTrueThicknessOfItsHardCoats) {
  ASSERT_TRUE(QFile::copy(QStringLiteral(VEXA_SHARE_DIR "/virtual-instrument/vexa.env"),
                          files.Path("vexa.env")));
  Start("--noise off");
  ASSERT_EQ(Measure("--samples 5 --sampling-time 10000").status, 0);
  const Outcome outcome = Run("analyse @out.csv --env @vexa.env --thickness --type B --json");
  for (const auto& [index, thicknessNm, limitNm] :
       {std::tuple{3, 1500.0, 12.4}, std::tuple{4, 4000.0, 25.8}}) {
    const QJsonObject slot = outcome["slots"].toArray()[index].toObject();
    const QJsonObject thickness = slot[QLatin1String("thickness")].toObject();
    EXPECT_NEAR(thickness[QLatin1String("thickness")].toDouble(), thicknessNm, limitNm)
        << outcome.err.constData();
  }
}

struct FaultCase {
  const char* fault;
  const char* json;  ///< the whole report but the file
  const char* messages;
  const char* reason = "";    ///< why the link failed, told below the messages
  const char* patience = "";  ///< less than the program's own where a reply is awaited in vain
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
  // Long enough for the exchanges before the fault on a machine that has much else to do.
  const char* const kShort = "--reply-timeout 1500";
  const FaultCase cases[] = {
      {"no-reply@1", R"({"initialise":-15,"background":null,"reference":null,"samples":[]})",
       kDevice, "com5", "--reply-timeout 400"},
      {"no-reply@7", kBad15, kFailed, "com5", kShort},
      {"error-reply@9", kBad3, kFailed},
      {"short-line@10", kBad4, kFailed},
      {"late-bytes@9 --late 3000", kBad15, kFailed, "", kShort},
      {"byte-by-byte@9", kGood, ""},
      {"split-terminator@10", kGood, ""},
      {"noise-before@10", kBad4, kFailed},
      {"saturation@15", R"({"initialise":0,"background":0,"reference":1,"samples":[]})",
       kSaturated},
      {"saturation@19", R"({"initialise":0,"background":0,"reference":0,"samples":[1]})",
       kSaturated},
      {"unplug@9", kBad3, kFailed, "/dev/ttyS4"},
      {"unplug@19", R"({"initialise":0,"background":0,"reference":0,"samples":[-4]})", kFailed,
       "/dev/ttyS4"},
  };
  for (const FaultCase& fault : cases) {
    SCOPED_TRACE(fault.fault);
    Start(QByteArray("--replug 50 --fault ") + fault.fault);
    const Outcome outcome = Measure(QByteArray("--sampling-time 400 ") + fault.patience);
    QJsonObject report = outcome.Json();
    report.remove(QLatin1String("file"));
    EXPECT_EQ(report, Object(fault.json)) << outcome.out.constData();
    const qsizetype end = outcome.err.indexOf("vexa-cli: ");
    EXPECT_EQ(outcome.err.first(end < 0 ? outcome.err.size() : end).toStdString(), fault.messages);
    EXPECT_EQ(end < 0, *fault.reason == '\0') << outcome.err.constData();
    EXPECT_TRUE(outcome.err.contains(fault.reason)) << outcome.err.constData();
    EXPECT_EQ(outcome.status, *fault.messages == '\0' ? 0 : 1);
    while (!files.Has("com5")) {
      ASSERT_TRUE(instrument.waitForReadyRead(test::kTimeoutMs)) << "the port comes back";
    }
    EXPECT_EQ(Measure("--sampling-time 400").status, 0);
    Stop();
    EXPECT_FALSE(files.Has("com5"));
  }
}

}  // namespace
}  // namespace vexa

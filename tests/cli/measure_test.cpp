// SPDX-License-Identifier: GPL-3.0-or-later
// A run of measurements that ends early, is repeated, or waits for its operator.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <algorithm>

#include "cli/running_programs.h"
#include "support/waiting.h"

namespace vexa {
namespace {

using test::Outcome;

class MeasureRun : public test::WithInstrument {
 protected:
  void Begin(const QByteArray& options) {
    run.setReadChannel(QProcess::StandardError);
    run.setWorkingDirectory(files.Directory());
    run.start(test::Program("vexa-cli"),
              files.Words("measure --dir @ --json --sampling-time 400 --out @out.csv " + options));
    ASSERT_TRUE(run.waitForStarted(test::kTimeoutMs));
  }

  Outcome End() {
    EXPECT_TRUE(run.waitForFinished(test::kTimeoutMs));
    EXPECT_EQ(run.exitStatus(), QProcess::NormalExit);
    return {run.exitCode(), run.readAllStandardOutput(), run.readAllStandardError()};
  }

  // The commands that the instrument has received: it tells where a fault would strike that is a
  // thousand commands away.
  int Exchanges() {
    instrument.write("fault byte-by-byte +1000\n");
    QByteArray line;
    while (!line.startsWith("fault at ")) {
      if (!instrument.canReadLine() && !instrument.waitForReadyRead(test::kTimeoutMs)) {
        ADD_FAILURE() << "the instrument is silent";
        return 0;
      }
      line = instrument.readLine();
    }
    return line.trimmed().split(' ').last().toInt() - 1000;
  }

  void AwaitExchange(int number) {
    for (int tries = 0; Exchanges() < number && tries < 1000; ++tries) {
      test::Wait(10);
    }
    ASSERT_EQ(Exchanges(), number);
  }

  // The samples of a data file: values at 500 nm that are not 0.
  int SamplesIn(const char* name) {
    const QList<QByteArray> row = files.Read(name).split('\n').value(62).split(',');
    return static_cast<int>(std::count_if(row.begin() + 1, row.end(), [](const QByteArray& field) {
      return field.trimmed().toDouble() != 0.0;
    }));
  }

  QProcess run;
};

// The commands of a run: 1..6 initialise and sampling, 7..12 background, 13..16 reference, then
// four a sample: eyepiece shutter, measurement, data, eyepiece shutter. A measurement is quit
// first.
TEST_F(MeasureRun, ASignalEndsItInOrderAndLosesNoFinishedSample) {
  struct Case {
    int signal;
    int silentAt;  ///< the command that is waited for when the signal comes
    int lastOne;   ///< that the instrument gets: the shutters are at rest again
    int samples;   ///< finished
    const char* report;
  };
  const Case cases[] = {
      {SIGINT, 2, 2, 0, R"({"initialise":-9,"background":null,"reference":null,"samples":[]})"},
      {SIGINT, 9, 12, 0, R"({"initialise":0,"background":-9,"reference":null,"samples":[]})"},
      {SIGHUP, 22, 24, 1, R"({"initialise":0,"background":0,"reference":0,"samples":[0,-9]})"},
      {SIGTERM, 27, 28, 2, R"({"initialise":0,"background":0,"reference":0,"samples":[0,0,-9]})"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.silentAt);
    QFile::remove(files.Path("out.csv"));
    Start("--stage glass --fault no-reply@" + QByteArray::number(c.silentAt));
    Begin("--port 5 --samples 3");
    AwaitExchange(c.silentAt);
    ASSERT_EQ(files.Has("out.csv"), c.samples > 0);
    EXPECT_EQ(c.samples > 0 ? SamplesIn("out.csv") : 0, c.samples) << "before the next one ends";
    ::kill(static_cast<pid_t>(run.processId()), c.signal);
    const Outcome outcome = End();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "");
    QJsonObject report = outcome.Json();
    report.remove(QLatin1String("file"));
    EXPECT_EQ(report, test::Object(c.report)) << outcome.out.constData();
    EXPECT_EQ(c.samples > 0 ? SamplesIn("out.csv") : 0, c.samples);
    EXPECT_EQ(Exchanges(), c.lastOne);
    Begin("--port 5 --samples 2");
    EXPECT_EQ(End().status, 0) << "the next run works";
    Stop();
  }
}

TEST_F(MeasureRun, APromptTakesEnterWheneverItWasPressed) {
  struct Case {
    const char* name;
    const char* input;
    int signal;  ///< sent at the last prompt; 0 closes the input instead
    int status;
    int samples;
    const char* complaint = "";
  };
  const Case cases[] = {
      {"all at once", "\n\n\n\n", 0, 0, 2},
      {"more than are needed", "a\n\nb b\n\n\n\n", 0, 0, 2},
      {"the input ends", "\n\n\n", 0, 1, 1, "標準入力が終わりました"},
      {"the last line has no end", "\n\n\nx", 0, 1, 1, "標準入力が終わりました"},
      {"interrupted", "\n\n\n", SIGINT, 1, 1},
      {"before the first", "", SIGTERM, 1, 0},
  };
  Start("--stage glass");
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    QFile::remove(files.Path("out.csv"));
    Begin("--port 5 --samples 2 --prompt");
    run.write(c.input);
    if (c.signal == 0) {
      run.closeWriteChannel();
    } else {
      const auto prompts = static_cast<qsizetype>(qstrlen(c.input)) + 1;
      QByteArray prompted;
      while (prompted.count("Enter") < prompts) {
        ASSERT_TRUE(run.waitForReadyRead(test::kTimeoutMs) || run.bytesAvailable() > 0);
        prompted += run.readAllStandardError();
      }
      ::kill(static_cast<pid_t>(run.processId()), c.signal);
    }
    const Outcome outcome = End();
    EXPECT_EQ(outcome.status, c.status) << outcome.err.constData();
    EXPECT_TRUE(outcome.err.contains(c.complaint)) << outcome.err.constData();
    ASSERT_EQ(files.Has("out.csv"), c.samples > 0);
    EXPECT_EQ(c.samples > 0 ? SamplesIn("out.csv") : 0, c.samples);
  }
}

TEST_F(MeasureRun, ARelativeDeviceIsRelativeToTheCurrentDirectory) {
  ASSERT_TRUE(QDir(files.Directory()).mkpath(QStringLiteral("sub")));
  Start({});
  ASSERT_TRUE(QFile::link(files.Path("com5"), files.Path("sub/com5")));
  for (const QByteArray device : {"com5", "sub/com5", "sub/../com5", "@com5"}) {
    Begin("--device " + device);
    const Outcome outcome = End();
    EXPECT_EQ(outcome.status, 0) << device.constData() << outcome.err.constData();
  }
  Begin("--device com6");
  EXPECT_EQ(End().status, 1);
}

TEST_F(MeasureRun, AnEarlierFileOfMoreSamplesIsKeptBesideTheNewOne) {
  Start("--stage glass --seed 1");
  Begin("--port 5 --samples 3");
  ASSERT_EQ(End().status, 0);
  Stop();
  const QByteArray earlier = files.Read("out.csv");
  ASSERT_EQ(SamplesIn("out.csv"), 3);
  struct Case {
    const char* samples;
    const char* fault;
    int status;
    int written;
    bool kept;
  };
  const Case cases[] = {
      {"3", "error-reply@9", 1, 3, false},  // none was measured: the file is the earlier one
      {"3", "error-reply@22", 1, 1, true},  {"2", "byte-by-byte@9", 0, 2, true},
      {"3", "byte-by-byte@9", 0, 3, false}, {"4", "error-reply@30", 1, 3, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.samples) + " " + c.fault);
    files.Write("out.csv", earlier);
    QFile::remove(files.Path("out.csv.bak"));
    Start(QByteArray("--stage glass --seed 2 --fault ") + c.fault);
    Begin(QByteArray("--port 5 --samples ") + c.samples);
    EXPECT_EQ(End().status, c.status);
    EXPECT_EQ(SamplesIn("out.csv"), c.written);
    ASSERT_EQ(files.Has("out.csv.bak"), c.kept);
    EXPECT_TRUE(!c.kept || files.Read("out.csv.bak") == earlier);
    Stop();
  }
}

TEST_F(MeasureRun, AFileThatCannotBeWrittenIsToldBeforeTheInstrumentIsAsked) {
  Start({});
  for (const QByteArray out : {"@missing/a.csv", "@"}) {
    Begin("--port 5 --out " + out);
    const Outcome outcome = End();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("書き込めません")) << outcome.err.constData();
  }
  EXPECT_EQ(Exchanges(), 0);
}

TEST_F(MeasureRun, ARecipeGivesStandardRepeatsAndItsName) {
  Start("--stage glass");
  files.Write("r.json", R"({"format": "VEXA-KT recipe", "version": 1, "name": "AR", "repeats": 2,
                            "cie": {"limits": {"Rv": {"lower": 3, "upper": 3.1}}}})");
  const QByteArray recipe = "--recipe @r.json ";
  const Outcome measured = Measure(recipe + "--record --lot L --samples 2 --sample-number A");
  EXPECT_EQ(measured.status, 0) << measured.err.constData();
  EXPECT_EQ(measured["samples"].toArray().size(), 4);
  const QJsonArray records = Run("records list --dir @ --lot L --json")["records"].toArray();
  ASSERT_EQ(records.size(), 4);
  const char* numbers[] = {"", "", "A", "A"};  // the newest first
  for (int i = 0; i < 4; ++i) {
    const QJsonObject record = records[i].toObject();
    EXPECT_EQ(record[QStringLiteral("recipe")], QStringLiteral("AR"));
    EXPECT_EQ(record[QStringLiteral("verdict")], QStringLiteral("NG"));
    EXPECT_EQ(record[QStringLiteral("sample")], QLatin1String(numbers[i]));
  }

  files.Write("bad.json", R"({"format": "VEXA-KT recipe", "version": 1, "repeat": 2})");
  files.Write("none.json", R"({"format": "VEXA-KT recipe", "version": 1, "standard": "no.std"})");
  struct Case {
    QByteArray options;
    int status;
    const char* complaint;
  };
  const Case cases[] = {{recipe + "--samples 6", 2, "10"},
                        {"--recipe @bad.json", 1, "repeat: "},
                        {"--recipe @none.json", 1, "no.std"},
                        {"--recipe @missing.json", 1, "missing.json"}};
  for (const Case& c : cases) {
    const Outcome refused = Measure(c.options);
    EXPECT_EQ(refused.status, c.status) << c.options.constData();
    EXPECT_TRUE(refused.err.contains(c.complaint)) << refused.err.constData();
  }
}

}  // namespace
}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace vexa::test {

inline constexpr int kTimeoutMs = 30000;

inline QString Program(const char* name) {
  return QStringLiteral(VEXA_BIN_DIR "/") + QLatin1String(name);
}

struct Outcome {
  int status = -1;
  QByteArray out;
  QByteArray err;
  [[nodiscard]] QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
};

inline Outcome RunCli(const QStringList& arguments) {
  QProcess process;
  process.start(Program("vexa-cli"), arguments);
  EXPECT_TRUE(process.waitForFinished(kTimeoutMs));
  return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

inline QStringList Words(const char* text) {
  return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

class CommandLine : public testing::Test {
 protected:
  QString File(const char* name) const { return directory.filePath(QLatin1String(name)); }

  QString Lines(const char* name, int value, int count = 1) const {
    QFile file(File(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 512 * count; ++i) {
      file.putChar(static_cast<char>(value & 0xff));
      file.putChar(static_cast<char>(value >> 8));
    }
    return file.fileName();
  }

  QTemporaryDir directory{QDir::tempPath() + QStringLiteral("/測 定-XXXXXX")};
};

class WithInstrument : public CommandLine {
 protected:
  void Start(const QStringList& options) {
    instrument.start(Program("vexa-simulator"),
                     QStringList{QStringLiteral("--dir"), directory.path(),
                                 QStringLiteral("--pace"), QStringLiteral("none")} +
                         options);
    ASSERT_TRUE(instrument.waitForReadyRead(kTimeoutMs))
        << instrument.readAllStandardError().constData();
  }
  void Stop() {
    instrument.terminate();
    ASSERT_TRUE(instrument.waitForFinished(kTimeoutMs));
  }
  void TearDown() override {
    if (instrument.state() != QProcess::NotRunning) {
      Stop();
    }
  }
  Outcome Measure(const char* options) {
    return RunCli(QStringList{QStringLiteral("measure"), QStringLiteral("--port"),
                              QStringLiteral("5"), QStringLiteral("--dir"), directory.path(),
                              QStringLiteral("--out"), File("out.csv"), QStringLiteral("--json")} +
                  Words(options));
  }
  QProcess instrument;
};

}  // namespace vexa::test

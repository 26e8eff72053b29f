// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "support/temporary_files.h"

namespace vexa::test {

inline constexpr int kTimeoutMs = 30000;

inline QString Program(const char* name) {
  return QStringLiteral(VEXA_BIN_DIR "/") + QLatin1String(name);
}

inline QJsonObject Object(const char* text) {
  return QJsonDocument::fromJson(text).object();
}

/// How vexa-cli ended.
struct Outcome {
  int status = -1;
  QByteArray out;
  QByteArray err;

  [[nodiscard]] QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
  QJsonValue operator[](const char* name) const { return Json()[QLatin1String(name)]; }
};

/// vexa-cli as a program, and files for it; "@NAME" in a text of arguments is one of them.
class CommandLine : public testing::Test {
 protected:
  [[nodiscard]] Outcome Run(const QByteArray& arguments) const {
    QProcess process;
    process.start(Program("vexa-cli"), files.Words(arguments));
    EXPECT_TRUE(process.waitForFinished(kTimeoutMs));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }

  TemporaryFiles files;
};

/// With the virtual instrument at the other end of the link.
class WithInstrument : public CommandLine {
 protected:
  void Start(const QByteArray& options) {
    instrument.start(Program("vexa-simulator"), files.Words("--dir @ --pace none " + options));
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
  [[nodiscard]] Outcome Measure(const QByteArray& options) const {
    return Run("measure --port 5 --dir @ --out @out.csv --json " + options);
  }

  QProcess instrument;
};

}  // namespace vexa::test

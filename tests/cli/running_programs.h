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

/// vexa-cli as a program, and files for it in a directory of their own.
class CommandLine : public testing::Test {
 protected:
  /// The words of a text; "@NAME" is the file of that name, "@" the directory itself.
  [[nodiscard]] QStringList Words(const QByteArray& text) const {
    QStringList words = QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
    for (QString& word : words) {
      if (word.startsWith(u'@')) {
        word = files.Path(word.sliced(1).toUtf8());
      }
    }
    return words;
  }

  [[nodiscard]] Outcome Run(const QByteArray& arguments) const {
    QProcess process;
    process.start(Program("vexa-cli"), Words(arguments));
    EXPECT_TRUE(process.waitForFinished(kTimeoutMs));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }

  TemporaryFiles files;
};

/// With the virtual instrument at the other end of the link.
class WithInstrument : public CommandLine {
 protected:
  void Start(const QByteArray& options) {
    instrument.start(Program("vexa-simulator"), Words("--dir @ --pace none " + options));
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

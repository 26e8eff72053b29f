// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace vexa::test {

/// A PostgreSQL server of its own, on a socket in a temporary directory, that can be stopped and
/// started again. The server refuses to be root; it is then run as the user nobody.
class PrivatePostgres {
 public:
  PrivatePostgres() {
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      binaries_ = versions.filePath(version + QStringLiteral("/bin/"));
    }
  }
  ~PrivatePostgres() {
    if (IsInstalled() && running_) {
      Stop();
    }
    if (asNobody_) {  // what belongs to nobody is removed by nobody
      Run(QStringLiteral("rm"), {QStringLiteral("-rf"), Data()});
    }
  }
  PrivatePostgres(const PrivatePostgres&) = delete;
  PrivatePostgres& operator=(const PrivatePostgres&) = delete;

  [[nodiscard]] bool IsInstalled() const { return !binaries_.isEmpty(); }

  void Create() {
    if (asNobody_) {
      ASSERT_EQ(::chown(QFile::encodeName(directory_.path()).constData(), 65534, 65534), 0);
    }
    Run(binaries_ + QStringLiteral("initdb"),
        {QStringLiteral("--pgdata"), Data(), QStringLiteral("--username"), QStringLiteral("vexa"),
         QStringLiteral("--auth=trust"), QStringLiteral("--no-sync"), QStringLiteral("--encoding"),
         QStringLiteral("UTF8"), QStringLiteral("--locale=C")});
    Start();
  }
  void Start() {
    Run(binaries_ + QStringLiteral("pg_ctl"),
        {QStringLiteral("--pgdata"), Data(), QStringLiteral("--wait"), QStringLiteral("--log"),
         Data() + QStringLiteral("/log"), QStringLiteral("--options"),
         QStringLiteral("-k %1 -c listen_addresses='' -F").arg(directory_.path()),
         QStringLiteral("start")});
    running_ = true;
  }
  void Stop() {
    Run(binaries_ + QStringLiteral("pg_ctl"),
        {QStringLiteral("--pgdata"), Data(), QStringLiteral("--wait"), QStringLiteral("--mode"),
         QStringLiteral("immediate"), QStringLiteral("stop")});
    running_ = false;
  }

  [[nodiscard]] QString Uri() const {
    return QStringLiteral("postgresql://vexa@/postgres?host=") + directory_.path();
  }

 private:
  [[nodiscard]] QString Data() const { return directory_.filePath(QStringLiteral("data")); }

  void Run(const QString& program, const QStringList& arguments) const {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    // A server that inherits the pipe would hold it open.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setWorkingDirectory(QStringLiteral("/"));
    if (asNobody_) {
      process.start(QStringLiteral("setpriv"),
                    QStringList{QStringLiteral("--reuid=65534"), QStringLiteral("--regid=65534"),
                                QStringLiteral("--clear-groups"), program} +
                        arguments);
    } else {
      process.start(program, arguments);
    }
    EXPECT_TRUE(process.waitForFinished(60000) && process.exitCode() == 0)
        << program.toStdString() << ' ' << arguments.join(u' ').toStdString();
  }

  QTemporaryDir directory_{QStringLiteral("/tmp/vexa-pg-XXXXXX")};
  QString binaries_;
  bool asNobody_ = ::getuid() == 0;
  bool running_ = false;
};

}  // namespace vexa::test

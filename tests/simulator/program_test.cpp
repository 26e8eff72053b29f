// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QFileInfo>
#include <QProcess>
#include <array>

#include "support/temporary_files.h"

namespace {

using namespace Qt::StringLiterals;

constexpr int kPatienceMs = 10000;

/// The other end of the link, opened as a serial port would be: for this program alone, until the
/// end, however that comes.
class Port {
 public:
  explicit Port(const QString& path)
      : descriptor_(::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY)) {
    int claimed = 0;
    ::ioctl(descriptor_, TIOCGEXCL, &claimed);
    EXPECT_EQ(claimed, 0) << "a user without privileges could not have opened it";
    ::ioctl(descriptor_, TIOCEXCL);
  }
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;
  ~Port() { ::close(descriptor_); }

  void Send(const char* frame) const {
    const QByteArray bytes = QByteArray::fromHex(frame);
    EXPECT_EQ(::write(descriptor_, bytes.constData(), static_cast<std::size_t>(bytes.size())),
              bytes.size());
  }

  /// What comes until the terminator is last, or the port is gone.
  QByteArray Receive(const char* terminator) const {
    QByteArray received;
    pollfd wait{descriptor_, POLLIN, 0};
    while (!received.endsWith(terminator) && ::poll(&wait, 1, kPatienceMs) > 0) {
      std::array<char, 4096> buffer;
      const ssize_t count = ::read(descriptor_, buffer.data(), buffer.size());
      if (count <= 0) {
        return received + "<gone>";
      }
      received.append(buffer.data(), count);
    }
    return received;
  }

  char ReceiveByte() const {
    char byte = 0;
    EXPECT_EQ(::read(descriptor_, &byte, 1), 1);
    return byte;
  }

  QByteArray Ask(const char* frame, const char* terminator = "REQEND") const {
    Send(frame);
    return Receive(terminator);
  }

 private:
  int descriptor_;
};

class ProgramTest : public testing::Test {
 protected:
  void Start(QProcess& program, const QByteArray& options) const {
    program.start(QStringLiteral(VEXA_SIMULATOR_PROGRAM), files_.Words("--dir @ " + options));
    ASSERT_TRUE(program.waitForStarted(kPatienceMs));
  }

  void StartReady(QProcess& program, const QByteArray& options = {}) const {
    Start(program, "--pace none " + options);
    ASSERT_EQ(NextLine(program), u"ready "_s + link_);
  }

  static QString NextLine(QProcess& program) {
    while (!program.canReadLine() && program.waitForReadyRead(kPatienceMs)) {
    }
    return QString::fromUtf8(program.readLine()).trimmed();
  }

  static int ExitStatus(QProcess& program) {
    EXPECT_TRUE(program.waitForFinished(kPatienceMs));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return program.exitCode();
  }

  bool LinkExists() const { return QFileInfo(link_).isSymLink(); }

  const vexa::test::TemporaryFiles files_;
  const QString link_ = files_.Path("com5");
};

TEST_F(ProgramTest, WrongOptionsEndWithStatus2AndOneLine) {
  const char* const cases[] = {"--unknown",
                               "extra",
                               "--pace fast",
                               "--port 0",
                               "--port x",
                               "--port 256",
                               "--stage gold",
                               "--seed -1",
                               "--noise 1",
                               "--late 1.5",
                               "--lamp-age old",
                               "--shutter-leak -0.1",
                               "--fault smoke",
                               "--fault no-reply@0",
                               "--fault no-reply@",
                               "--call-fault gp_trg",
                               "--call-fault gp_red=61",
                               "--call-fault gp_trg=none",
                               "--call-fault gp_trg=61@0",
                               "--replug",
                               "--dir /nowhere"};
  for (const char* arguments : cases) {
    QProcess program;
    Start(program, arguments);
    EXPECT_EQ(ExitStatus(program), 2) << arguments;
    const QByteArray error = program.readAllStandardError();
    EXPECT_EQ(error.count('\n'), 1) << error.toStdString();
    EXPECT_TRUE(error.startsWith("vexa-simulator: ")) << error.toStdString();
    EXPECT_EQ(program.readAllStandardOutput(), "");
    EXPECT_FALSE(LinkExists());
  }
}

TEST_F(ProgramTest, ListNamesSamplesAndFaults) {
  QProcess program;
  Start(program, "--list");
  EXPECT_EQ(ExitStatus(program), 0);
  const QByteArray list = program.readAllStandardOutput();
  EXPECT_EQ(list.count('\n'), 1 + 10 + 1 + 9 + 1 + 2);
  EXPECT_TRUE(list.contains("\n  hardcoat1.5 ") && list.contains("\n  split-terminator "));
}

TEST_F(ProgramTest, EverySignalAndQuitEndItAndRemoveTheLink) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP, 0}) {
    QProcess program;
    StartReady(program);
    EXPECT_TRUE(LinkExists());
    if (number == 0) {
      program.write("quit\n");
    } else {
      ::kill(static_cast<pid_t>(program.processId()), number);
    }
    EXPECT_EQ(ExitStatus(program), 0);
    EXPECT_FALSE(LinkExists()) << number;
  }
}

TEST_F(ProgramTest, LeavesWhatItMustNotReplace) {
  QProcess first;
  StartReady(first);
  QProcess second;
  Start(second, {});
  EXPECT_EQ(ExitStatus(second), 1);
  EXPECT_EQ(second.readAllStandardError().count('\n'), 1);
  EXPECT_EQ(Port(link_).Ask("69000000"), "CHARQUITREQEND");

  // A link that somebody else put in the place of its own stays when it ends.
  ASSERT_TRUE(QFile::remove(link_));
  ASSERT_TRUE(QFile::link(files_.Directory(), link_));
  first.write("quit\n");
  EXPECT_EQ(ExitStatus(first), 0);
  EXPECT_TRUE(LinkExists());
}

TEST_F(ProgramTest, ReplacesALinkToNothingAndOneOfADeadInstrument) {
  ASSERT_TRUE(QFile::link(u"/dev/pts/9999999"_s, link_));
  QProcess program;
  StartReady(program);
  program.closeWriteChannel();  // the end of its input must not end it
  {
    const Port port(link_);
    EXPECT_EQ(port.Ask("69000000"), "CHARQUITREQEND");
    EXPECT_EQ(port.Ask("69000000"), "CHARQUITREQEND");
  }
  program.kill();
  program.waitForFinished(kPatienceMs);
  ASSERT_TRUE(QFile::remove(link_));
  // The number of its terminal belongs to somebody else by now.
  const int other = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(QFile::link(QString::fromLocal8Bit(::ptsname(other)), link_));
  QProcess next;
  StartReady(next);
  ::close(other);
  next.terminate();
  EXPECT_EQ(ExitStatus(next), 0);
}

TEST_F(ProgramTest, MeasuresTheSamplesInTurnAndSurvivesReconnection) {
  QProcess program;
  StartReady(program, "--noise off");
  {
    const Port port(link_);
    EXPECT_EQ(port.Ask("E1000000"), "CHARVEXA-KT H8 1.00REQEND");
    port.Ask("96392900");  // 3000 ms
    port.Ask("A5010000");
    port.Ask("C3010100");
    // Dark: 60 + 18 counts on every pixel.
    EXPECT_EQ(port.Ask("B4000100", "DATEND"),
              "DATA" + QByteArray::fromHex("4E00").repeated(512) + "DATEND");
    port.Ask("A5020000");
    port.Ask("C30F0100");
    // More than a pseudo-terminal takes at once.
    EXPECT_EQ(port.Ask("B4000F00", "DATEND").size(), 4 + 15 * 1024 + 6);
    port.Send("B4000F00");
    EXPECT_EQ(port.ReceiveByte(), 'D');  // and leave with the rest unread
  }
  EXPECT_EQ(NextLine(program), u"stage glass"_s);
  EXPECT_EQ(NextLine(program), u"stage mgf2"_s);
  // Two rounds of its event loop, so that it has seen the port close.
  for (const auto& next : {u"stage ar4"_s, u"stage hardcoat1.5"_s}) {
    program.write("next\n");
    EXPECT_EQ(NextLine(program), next);
  }
  const Port again(link_);
  EXPECT_EQ(again.Ask("E1000000"), "CHARVEXA-KT H8 1.00REQEND");
  again.Ask("C3010100");
  EXPECT_EQ(NextLine(program), u"stage reference"_s);
  program.terminate();
  EXPECT_EQ(ExitStatus(program), 0);
}

TEST_F(ProgramTest, AgesByItsOptionsAndByItsInput) {
  const auto pixels = [](const Port& port, const char* shutters) {
    port.Ask(shutters);
    port.Ask("C3010100");
    const QByteArray line = port.Ask("B4000100", "DATEND");
    const auto at = [&line](int pixel) {
      return static_cast<unsigned char>(line[4 + 2 * pixel]) +
             256 * static_cast<unsigned char>(line[5 + 2 * pixel]);
    };
    return std::pair(at(10), at(500));  // red, blue
  };
  QProcess program;
  StartReady(program, "--noise off --stage reference --shutter-leak 10");
  const Port port(link_);
  port.Ask("96392900");  // 3000 ms
  const auto leaking = pixels(port, "A5010000");
  const auto bright = pixels(port, "A5000000");
  // Above 78 counts in the dark, within the rounding of two readings.
  EXPECT_NEAR(leaking.first - 78, 0.1 * (bright.first - 78), 1.0);
  program.write("lamp-age 3000\nshutter-leak 0\n");
  EXPECT_EQ(NextLine(program), u"lamp-age 3000"_s);
  EXPECT_EQ(NextLine(program), u"shutter-leak 0"_s);
  EXPECT_EQ(pixels(port, "A5010000"), std::pair(78, 78));
  const auto aged = pixels(port, "A5000000");
  EXPECT_LT(aged.first, 0.95 * bright.first);
  EXPECT_LT(static_cast<double>(aged.second) / bright.second,
            0.9 * static_cast<double>(aged.first) / bright.first);
  program.write("quit\n");
  EXPECT_EQ(ExitStatus(program), 0);
}

TEST_F(ProgramTest, ObeysItsStandardInput) {
  QProcess program;
  StartReady(program, "--stage mirror");
  program.write("stage ar4\nnonsense\nnext\nfault error-reply +1\nstage glass\n");
  EXPECT_EQ(NextLine(program), u"stage ar4"_s);
  EXPECT_EQ(NextLine(program), u"stage hardcoat1.5"_s);
  EXPECT_EQ(NextLine(program), u"fault at 1"_s);
  EXPECT_EQ(NextLine(program), u"stage glass"_s);
  const Port port(link_);
  EXPECT_EQ(port.Ask("69000000", "REQERR"), "CHARREFUSEDREQERR");
  program.write("quit\n");
  EXPECT_EQ(ExitStatus(program), 0);
  EXPECT_EQ(program.readAllStandardError(), "vexa-simulator: unknown line \"nonsense\"\n");
}

}  // namespace

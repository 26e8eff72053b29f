// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/frm_com_h8_ctrl.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <array>

#include "instrument/port_diagnosis.h"
#include "instrument/serial_port_path.h"
#include "support/scripted_peer.h"
#include "support/waiting.h"

namespace vexa {
namespace {

using test::Done;
using test::PeerAction;
using Frames = std::vector<std::string>;

const Frames kInitialiseFrames{"E1000000", "96009100", "87FF0000", "A5010000", "A5010000"};
// With 30 ms the settling wait is 380 - 30 + 50 ms; the tests set it to nothing.
constexpr std::int16_t kNoSettling = 0;
constexpr std::int16_t kLongSettling = 5000;

class H8Controller : public testing::Test {
 protected:
  void SetUp() override {
    peer.SetLines(test::FlatLines(1, 100));
    ASSERT_EQ(Done(controller.H8Init(5)), 0);
    EXPECT_EQ(controller.InitialisationText(), QStringLiteral("H8 READY"));
    EXPECT_EQ(peer.TakeFrames(), kInitialiseFrames);
  }

  Status Acquire(LightFlag light) { return Acquire(light, kNoSettling); }

  // With the sampling that the controller was asked for last.
  Status Acquire(LightFlag light, std::int16_t settlingTimeMs) {
    const AcquisitionSettings settings{.settlingTimeMs = settlingTimeMs, .sampling = sampling};
    const Acquisition acquisition = Done(controller.Acquire(light, settings));
    if (acquisition.status >= 0) {
      spectrum = acquisition.counts;
    }
    return acquisition.status;
  }

  Status SetSampling(std::int16_t timeMs, std::int16_t averagingCount) {
    sampling = {timeMs, averagingCount};
    return Done(controller.SampleInit(timeMs, averagingCount));
  }

  test::ScriptedPeer peer;
  Sampling sampling;
  frmComH8Ctrl controller{[this](int n) { return SerialPortPath(peer.Directory(), n); },
                          test::ScriptedPeer::kReplyTimeoutMs};
  RawSpectrum spectrum;
};

TEST_F(H8Controller, BackgroundClosesAndOpensTheLight) {
  EXPECT_TRUE(controller.IsLightPathClosed());
  EXPECT_EQ(Acquire(LightFlag::kBackground), 0);
  EXPECT_EQ(peer.TakeFrames(),
            (Frames{"A5010000", "A5010000", "C3010100", "B4000100", "A5090000", "A50A0000"}));
  EXPECT_FALSE(controller.IsLightPathClosed());
  EXPECT_EQ(spectrum[500], 100.0);

  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  EXPECT_EQ(peer.TakeFrames(), (Frames{"A5020000", "C3010100", "B4000100", "A50A0000"}));
}

TEST_F(H8Controller, AveragesUpToFifteenLines) {
  ASSERT_EQ(SetSampling(30, 15), 0);
  peer.SetLines(test::FlatLines(14, 100) + test::FlatLines(1, 115));
  peer.TakeFrames();
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  EXPECT_EQ(spectrum[500], 101.0);
  EXPECT_EQ(peer.TakeFrames(), (Frames{"A5010000", "C30F0100", "B4000F00", "A5090000"}));
  // Lines of a larger averaging count that came earlier are never averaged in.
  ASSERT_EQ(SetSampling(30, 1), 0);
  peer.SetLines(test::FlatLines(1, 7));
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  EXPECT_EQ(spectrum[500], 7.0);
  // Sixteen lines make a command text of odd length: no frame is sent.
  ASSERT_EQ(SetSampling(30, 16), 0);
  peer.TakeFrames();
  EXPECT_EQ(Acquire(LightFlag::kSample), -3);
  EXPECT_EQ(peer.TakeFrames(), (Frames{"A5010000", "A5090000"}));
}

TEST_F(H8Controller, SamplingTimeThatNoTimerCountsSendsNothing) {
  peer.TakeFrames();
  EXPECT_EQ(SetSampling(0, 1), -1);
  EXPECT_EQ(SetSampling(20000, 1), 0);
  EXPECT_EQ(peer.TakeFrames(), Frames{"96BE8B01"});
}

struct FaultCase {
  const char* name;
  int frame;  ///< of the six frames of a background acquisition
  PeerAction action;
  Status status;
  Frames framesAfter;  ///< what is sent after the frame of the fault
};

using enum PeerAction;
const Frames kOpened{"A5090000", "A50A0000"};
const Frames kAllButTheFirst{"A5010000", "C3010100", "B4000100", "A5090000", "A50A0000"};

const FaultCase kFaultCases[] = {
    {"light shutter silent", 1, kSilence, -15, {}},
    {"eyepiece shutter silent", 2, kSilence, -15, {}},
    {"measurement silent", 3, kSilence, -15, {"69000000"}},
    {"data silent", 4, kSilence, -4, {}},
    {"eyepiece opening silent", 5, kSilence, -15, {}},
    {"light opening silent", 6, kSilence, -15, {}},
    {"shutter error is no failure", 1, kErrorReply, 0, kAllButTheFirst},
    {"measurement error", 3, kErrorReply, -3, kOpened},
    {"measurement says something else", 3, kOtherReply, -3, kOpened},
    {"noise before the measurement's end", 3, kNoiseBefore, -3, kOpened},
    {"data error", 4, kErrorReply, -4, {}},
    {"short line", 4, kShortLine, -4, kOpened},
    {"noise before the data", 4, kNoiseBefore, -4, kOpened},
    {"data byte by byte", 4, kByteByByte, 0, kOpened},
    {"data terminator split", 4, kSplitTerminator, 0, kOpened},
    {"measurement terminator split", 3, kSplitTerminator, 0, {"B4000100", "A5090000", "A50A0000"}},
    // A lost port ends the wait at once; the next frame cannot be sent.
    {"unplugged at the light shutter", 1, kUnplug, -2, {}},
    {"unplugged at the measurement", 3, kUnplug, -3, {}},
    {"unplugged at the data", 4, kUnplug, -4, {}},
};

TEST_F(H8Controller, EveryFaultHasItsStatusAndTheNextAcquisitionWorks) {
  const std::size_t kAllFrames = 6;
  for (const FaultCase& fault : kFaultCases) {
    SCOPED_TRACE(fault.name);
    ASSERT_EQ(Acquire(LightFlag::kBackground), 0);
    peer.TakeFrames();
    spectrum[440] = -1.0;
    peer.At(fault.frame, fault.action);
    EXPECT_EQ(Acquire(LightFlag::kBackground), fault.status);
    EXPECT_EQ(spectrum[440] == -1.0, fault.status != 0) << "only a good frame is written";
    const Frames frames = peer.TakeFrames();
    ASSERT_GE(frames.size(), static_cast<std::size_t>(fault.frame));
    EXPECT_EQ(Frames(frames.begin() + fault.frame, frames.end()), fault.framesAfter);

    if (fault.action == kUnplug) {
      EXPECT_EQ(Acquire(LightFlag::kSample), -2);
      peer.Plug();
      peer.At(1, kSilence);
      EXPECT_EQ(Acquire(LightFlag::kSample), -15);
      peer.TakeFrames();
      EXPECT_EQ(Acquire(LightFlag::kSample), 0) << "begins the reconnection anew";
      Frames expected = kInitialiseFrames;
      expected[3] = fault.frame == 1 ? "A5090000" : "A5010000";  // the eyepiece is as it was
      expected.insert(expected.end(),
                      {"96009100", "A5020000", "A5020000", "C3010100", "B4000100", "A50A0000"});
      EXPECT_EQ(peer.TakeFrames(), expected) << "the light is open again after a reconnection";
    }
    EXPECT_EQ(Acquire(LightFlag::kBackground), 0);
    EXPECT_GE(peer.TakeFrames().size(), kAllFrames);
  }
}

TEST_F(H8Controller, QuitIsTriedTwice) {
  peer.At(2, kSilence);
  peer.At(3, kSilence);
  peer.At(4, kSilence);
  peer.TakeFrames();
  EXPECT_EQ(Acquire(LightFlag::kSample), -3);
  EXPECT_EQ(peer.TakeFrames(), (Frames{"A5010000", "C3010100", "69000000", "69000000"}));
}

TEST_F(H8Controller, BytesNobodyAskedForDoNotAnswerTheNextCommand) {
  peer.Send("CHARENDREQEND");
  test::Wait(20);
  peer.At(1, kSilence);
  EXPECT_EQ(Done(controller.H8_MeasStart()), -15);
}

TEST_F(H8Controller, SecondAcquisitionReturnsAtOnce) {
  Status second = 0;
  QTimer::singleShot(0, &controller, [&] { second = Acquire(LightFlag::kSample); });
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  EXPECT_EQ(second, frmComH8Ctrl::kBusy);
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
}

// What is sent after the frames before a wait was cancelled, and nothing more than that.
TEST_F(H8Controller, CancellingEndsAWaitAndPutsTheInstrumentToRest) {
  struct Case {
    const char* name;
    AwaitedStep step;
    int silentFrame;  ///< of a background acquisition
    Frames framesAfter;
  };
  const Case cases[] = {
      {"light shutter", AwaitedStep::kLightShutter, 1, {"A5090000", "A50A0000"}},
      {"settling", AwaitedStep::kSettling, 2, {"A5090000", "A50A0000"}},
      {"measurement", AwaitedStep::kMeasurement, 3, {"69000000", "A5090000", "A50A0000"}},
      {"data", AwaitedStep::kData, 4, {"A5090000", "A50A0000"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_EQ(Acquire(LightFlag::kBackground), 0);
    peer.TakeFrames();
    const bool settles = c.step == AwaitedStep::kSettling;
    if (!settles) {
      peer.At(c.silentFrame, kSilence);
    }
    QObject waits;
    QObject::connect(&controller, &Controller::WaitBegan, &waits, [&](AwaitedStep step) {
      if (step == c.step) {
        QTimer::singleShot(5, &waits, [&] { controller.Cancel(); });
      }
    });
    EXPECT_EQ(Acquire(LightFlag::kBackground, settles ? kLongSettling : kNoSettling),
              Controller::kCancelled);
    const Frames frames = peer.TakeFrames();
    EXPECT_EQ(Frames(frames.begin() + c.silentFrame, frames.end()), c.framesAfter);
    EXPECT_FALSE(controller.IsLightPathClosed());
    EXPECT_EQ(Acquire(LightFlag::kSample), 0) << "the next one is not cancelled";
  }
}

// What the settings say is what a frame is taken with, whatever became of sending it before.
TEST_F(H8Controller, SamplingThatWasNotTakenIsSentBeforeTheNextFrame) {
  peer.At(1, kUnplug);
  EXPECT_EQ(SetSampling(60, 2), 0) << "a lost port shows at the next frame";
  peer.Plug();
  peer.SetLines(test::FlatLines(2, 100));
  peer.TakeFrames();
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  Frames expected = kInitialiseFrames;
  expected.insert(expected.end(), {"96012300", "A5010000", "C3020100", "B4000200", "A5090000"});
  EXPECT_EQ(peer.TakeFrames(), expected);

  peer.At(1, kSilence);
  EXPECT_EQ(SetSampling(30, 1), -15);
  peer.TakeFrames();
  peer.SetLines(test::FlatLines(1, 100));
  EXPECT_EQ(Acquire(LightFlag::kSample), 0);
  EXPECT_EQ(peer.TakeFrames(),
            (Frames{"96009100", "A5010000", "C3010100", "B4000100", "A5090000"}));
}

TEST_F(H8Controller, WaitsForTheShutterToSettleAndNoLonger) {
  std::vector<int> waitsMs;
  QObject::connect(&controller, &Controller::WaitBegan, [&](AwaitedStep step, int expectedMs) {
    if (step == AwaitedStep::kSettling) {
      waitsMs.push_back(expectedMs);
    }
  });
  for (const std::int16_t settlingMs : std::array<std::int16_t, 4>{0, 30, 31, 35}) {
    EXPECT_EQ(Acquire(LightFlag::kSample, settlingMs), 0);
  }
  EXPECT_EQ(waitsMs, (std::vector{1 + 50, 5 + 50})) << "beyond the 30 ms of a line, and a margin";
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(Acquire(LightFlag::kSample, 60), 0);
  EXPECT_GE(timer.elapsed(), 60 - 30 + 50);
}

TEST_F(H8Controller, CloseEndsAWait) {
  peer.At(1, kSilence);
  QTimer::singleShot(0, &controller, [this] { controller.Close(); });
  EXPECT_EQ(Done(controller.H8_MeasStart()), -4);
  EXPECT_EQ(Done(controller.H8_Quit()), -1);
}

TEST(H8ControllerStart, FailuresOfTheInitialisation) {
  for (const auto& [frame, status] : {std::pair{1, -15}, {2, -4}, {3, -5}, {4, -6}, {5, -7}}) {
    test::ScriptedPeer peer;
    frmComH8Ctrl controller([&peer](int) { return peer.Path(); },
                            test::ScriptedPeer::kReplyTimeoutMs);
    peer.At(frame, kSilence);
    EXPECT_EQ(Done(controller.H8Init(5)), status);
    EXPECT_EQ(controller.InitialisationText().isEmpty(), status == -15);
    EXPECT_EQ(Done(controller.H8Init(5)), -1) << "the port is open already";
  }
  frmComH8Ctrl nowhere([](int) { return QStringLiteral("/nowhere/com5"); });
  EXPECT_EQ(Done(nowhere.H8Init(5)), -1);
  EXPECT_EQ(Done(nowhere.LghtSht(true)), -1);
  EXPECT_FALSE(nowhere.IsLightPathClosed());
}

TEST(H8ControllerStart, FailureIsExplained) {
  frmComH8Ctrl nowhere([](int) { return QStringLiteral("/nowhere/com5"); });
  EXPECT_NE(Done(nowhere.Initialise(5)), 0);
  EXPECT_TRUE(nowhere.FailureDetails().startsWith(QStringLiteral("/nowhere/com5 という装置が")));

  test::ScriptedPeer peer;
  frmComH8Ctrl silent([&peer](int) { return peer.Path(); }, test::ScriptedPeer::kReplyTimeoutMs);
  peer.At(1, kSilence);
  EXPECT_NE(Done(silent.Initialise(5)), 0);
  EXPECT_TRUE(silent.FailureDetails().contains(QStringLiteral("応答がありません")));
  EXPECT_EQ(Done(silent.LghtSht(true)), 0);
  EXPECT_EQ(silent.FailureDetails(), QString());
}

// The virtual instrument keeps both ends of its pseudo-terminal open: it is the device itself.
TEST(PortDiagnosis, NamesAnotherProgramButNotTheOtherEndOfThePort) {
  const int end = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_EQ(::grantpt(end), 0);
  ASSERT_EQ(::unlockpt(end), 0);
  const QString path = QString::fromLocal8Bit(::ptsname(end));
  for (const bool holdsEnd : {true, false}) {
    ASSERT_EQ(::fcntl(end, F_SETFD, holdsEnd ? 0 : FD_CLOEXEC), 0);
    // Handed down open: QProcess would open it as the controlling terminal of a session's leader.
    const int port = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY);
    QProcess other;
    other.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    ASSERT_TRUE(other.waitForStarted());
    ::close(port);
    const QString named = QStringLiteral("sleep (PID %1)").arg(other.processId());
    for (const QString& explanation : {ExplainSilentPort(path), ExplainClosedPort(path)}) {
      EXPECT_EQ(explanation.contains(named), !holdsEnd) << explanation.toStdString();
    }
    other.kill();
    other.waitForFinished();
  }
  ::close(end);
}

}  // namespace
}  // namespace vexa

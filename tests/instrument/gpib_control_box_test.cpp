// SPDX-License-Identifier: GPL-3.0-or-later
// Against the virtual control box, loaded as the program would load the interface's own library.
#include "instrument/gpib_control_box.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>
#include <array>

#include "support/waiting.h"

namespace vexa {
namespace {

using test::Done;

constexpr std::int16_t kSamplingMs = 3000;

class ControlBox : public testing::Test {
 protected:
  static void SetOptions(const QByteArray& options) {
    qputenv("U2GPLIB_OPTIONS", "--noise off " + options);
  }

  Status Acquire(LightFlag light, GpibControlBox& from) {
    const AcquisitionSettings settings{.sampling = sampling};
    const Acquisition acquisition = Done(from.Acquire(light, settings));
    if (acquisition.status >= 0) {
      spectrum = acquisition.counts;
    }
    return acquisition.status;
  }

  // What the sensor sees at 555 nm, asked of the library itself: pixel 363 of the line.
  static int LookThrough(const char* before = nullptr) {
    GpLibrary gp;
    EXPECT_EQ(BindGpLibrary(QStringLiteral(VEXA_LIBRARY_DIR), gp), std::nullopt);
    if (before != nullptr) {
      EXPECT_EQ(gp.gp_wrt(1, before), 0);
    }
    std::array<unsigned char, kBytesPerLine> line{};
    int received = 0;
    EXPECT_EQ(gp.gp_trg(1), 0);
    EXPECT_EQ(gp.gp_wrt(1, "MEASDT 0"), 0);
    EXPECT_EQ(gp.gp_tfrin(1, kBytesPerLine, line.data(), &received), 0);
    int status = 0;
    EXPECT_EQ(gp.gp_rds(1, &status), 0);
    return line[2 * 363] + 256 * line[2 * 363 + 1];
  }

  Status SetSampling(std::int16_t timeMs, std::int16_t averagingCount, GpibControlBox& of) {
    sampling = {timeMs, averagingCount};
    return Done(of.SetSampling(sampling));
  }

  Sampling sampling;
  RawSpectrum spectrum;
};

// The n-th call in a run: initialising takes three writes, requests and polls (the first request
// without a write), the sampling settings two more; then come light, lamp, eyepiece, MEASDT, and
// eyepiece, lamp, light.
TEST_F(ControlBox, AfterEveryFailureTheLightIsAtRestAndTheNextFrameIsRight) {
  const char* const faults[] = {
      "gp_wrt=54@5",     "gp_wsrq=none@6", "gp_rds=61@7",     "gp_wrt=3@7",
      "gp_trg=61",       "gp_wsrq=none@9", "gp_rds=61@9",     "gp_wrt=61@8",
      "gp_tfrin=62",     "gp_tfrin=short", "gp_wsrq=none@11", "gp_rds=54@12",
      "gp_wsrq=none@13", "gp_wrt=61@9",    "gp_wrt=54@10",    "gp_wrt=61@11"};
  for (const char* fault : faults) {
    SCOPED_TRACE(fault);
    SetOptions(QByteArray("--pace none --call-fault ") + fault);
    GpibControlBox box(QStringLiteral(VEXA_LIBRARY_DIR));
    ASSERT_EQ(Done(box.Initialise(0)), 0);
    ASSERT_EQ(SetSampling(kSamplingMs, 1, box), 0);

    EXPECT_LT(Acquire(LightFlag::kBackground, box), 0);
    EXPECT_TRUE(box.FailureMessage());
    // Dark 78 counts, room light through the open eyepiece 30, the lamp some hundreds.
    EXPECT_NEAR(LookThrough(), 108, 1);
    EXPECT_GT(LookThrough("PHILL 1,I"), 300) << "the light shutter is open";

    EXPECT_EQ(Acquire(LightFlag::kBackground, box), 0);
    EXPECT_EQ(spectrum[500], 78.0) << "the sampling settings are in force again";
    EXPECT_FALSE(box.IsLightPathClosed());
    EXPECT_FALSE(box.FailureMessage());
  }
}

TEST_F(ControlBox, TheEventLoopRunsWhileTheBoxIsAwaited) {
  SetOptions("--pace real");
  GpibControlBox box(QStringLiteral(VEXA_LIBRARY_DIR));
  ASSERT_EQ(Done(box.Initialise(0)), 0);
  ASSERT_EQ(SetSampling(150, 2, box), 0);
  QTimer ticks;
  int ticked = 0;
  Status second = 0;
  QObject::connect(&ticks, &QTimer::timeout, &box, [&] {
    ++ticked;
    second = Acquire(LightFlag::kSample, box);
  });
  ticks.start(10);
  QElapsedTimer time;
  time.start();
  EXPECT_EQ(Acquire(LightFlag::kSample, box), 0);
  EXPECT_GE(time.elapsed(), 300) << "two lines of 150 ms";
  EXPECT_GT(ticked, 0);
  EXPECT_EQ(second, GpibControlBox::kBusy);
}

TEST_F(ControlBox, ACallThatNeverComesBackIsGivenUp) {
  SetOptions("--pace none --call-fault gp_trg=hang");
  GpibControlBox box(QStringLiteral(VEXA_LIBRARY_DIR), 200);
  ASSERT_EQ(Done(box.Initialise(0)), 0);
  const MessageCall overdue{Message::kGpibTimeOut,
                            {QStringLiteral("gp_trg"), QStringLiteral("502")}};
  EXPECT_EQ(Acquire(LightFlag::kSample, box), -502);
  EXPECT_EQ(box.FailureMessage(), overdue);
  EXPECT_EQ(Acquire(LightFlag::kSample, box), -100) << "the library is still out";
}

TEST_F(ControlBox, ClosingEndsAWaitWithoutAMessage) {
  SetOptions("--pace none --call-fault gp_wsrq=hang");
  GpibControlBox box(QStringLiteral(VEXA_LIBRARY_DIR));
  QTimer::singleShot(20, &box, &GpibControlBox::Close);
  EXPECT_EQ(Done(box.Initialise(0)), GpibControlBox::kClosed);
  EXPECT_FALSE(box.FailureMessage());
}

}  // namespace
}  // namespace vexa

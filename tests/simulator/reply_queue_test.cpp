// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/reply_queue.h"

#include <gtest/gtest.h>

namespace vexa::simulator {
namespace {

using namespace std::chrono_literals;
using Moment = ReplyQueue::Clock::time_point;

/// Bytes on the wire, as time: 1/5760 s each, and some nanoseconds for rounding.
std::chrono::nanoseconds Wire(double bytes) {
  return std::chrono::nanoseconds(static_cast<std::int64_t>(bytes * 1e9 / 5760.0) + 10);
}

class ReplyQueueTest : public testing::Test {
 protected:
  std::optional<Moment> Pump(ReplyQueue& queue, Moment now) {
    return queue.Pump(
        now, [this](QByteArrayView bytes) { sent_.append(bytes), ++writes_; },
        [this](Milestone milestone) { reached_.push_back(milestone); });
  }

  /// Calls at the moments asked for until nothing is left; the last of them.
  Moment Drain(ReplyQueue& queue, Moment now) {
    while (const auto next = Pump(queue, now)) {
      EXPECT_GT(*next, now);
      now = *next;
    }
    return now;
  }

  const Moment start_{10s};
  QByteArray sent_;
  int writes_ = 0;
  std::vector<Milestone> reached_;
};

TEST_F(ReplyQueueTest, PacedBytesEndWhenTheWireWouldEnd) {
  const struct {
    qsizetype bytes;
    std::chrono::milliseconds exposure;
    std::chrono::milliseconds pause;
  } cases[] = {{1, 0ms, 0ms}, {13, 3000ms, 0ms}, {1034, 0ms, 1500ms}, {15370, 0ms, 0ms}};
  for (const auto& c : cases) {
    ReplyQueue queue(true);
    queue.Add(start_, {.steps = {{QByteArray(c.bytes, 'x'), c.exposure, c.pause}}});
    const auto end = Drain(queue, start_) - start_;
    const auto expected = c.exposure + c.pause + Wire(4.0 + static_cast<double>(c.bytes));
    EXPECT_NEAR(static_cast<double>((end - expected).count()), 0.0, 1000.0) << c.bytes;
  }
  EXPECT_EQ(sent_.size(), 1 + 13 + 1034 + 15370);
}

TEST_F(ReplyQueueTest, SendsNoByteBeforeItsTimeAndCatchesUpAfterALateCall) {
  ReplyQueue queue(true);
  queue.Add(start_, {.steps = {{QByteArray(100, 'x')}}});
  EXPECT_TRUE(Pump(queue, start_ + Wire(4.9)));
  EXPECT_EQ(sent_.size(), 0);
  EXPECT_TRUE(Pump(queue, start_ + Wire(5.0)));
  EXPECT_EQ(sent_.size(), 1);
  EXPECT_TRUE(Pump(queue, start_ + Wire(74.5)));
  EXPECT_EQ(sent_.size(), 70);
  EXPECT_FALSE(Pump(queue, start_ + Wire(104.0)));
  EXPECT_EQ(sent_.size(), 100);
}

TEST_F(ReplyQueueTest, UnpacedKeepsOnlyThePauses) {
  ReplyQueue queue(false);
  queue.Add(start_, {.steps = {{"END", 3000ms, 0ms, Milestone::LightMeasured},
                               {"late", 0ms, 40ms, Milestone::LightLinesSent}}});
  EXPECT_EQ(Pump(queue, start_), start_ + 40ms);
  EXPECT_EQ(sent_, "END");
  EXPECT_EQ(reached_, std::vector{Milestone::LightMeasured});
  EXPECT_FALSE(Pump(queue, start_ + 40ms));
  EXPECT_EQ(sent_, "ENDlate");
  EXPECT_EQ(writes_, 2);
  EXPECT_EQ(reached_.size(), 2U);
}

TEST_F(ReplyQueueTest, AnswersFollowEachOtherUnlessOneDropsTheRest) {
  ReplyQueue queue(true);
  queue.Add(start_, {.steps = {{"one", 100ms}}});
  queue.Add(start_ + 1ms, {.steps = {{"two", 10ms}}});
  // 4 + 3 bytes and 100 ms for the first; the second has arrived by then, 10 ms and 3 bytes.
  const auto end = Drain(queue, start_) - start_;
  EXPECT_NEAR(static_cast<double>((end - 110ms - Wire(10)).count()), 0.0, 1000.0);
  EXPECT_EQ(sent_, "onetwo");

  queue.Add(start_, {.steps = {{"END", 100ms, 0ms, Milestone::DarkMeasured}}});
  queue.Add(start_ + 1ms, {.dropsPending = true, .steps = {{"QUIT"}}});
  EXPECT_LT(Drain(queue, start_ + 1ms), start_ + 3ms);
  EXPECT_EQ(sent_, "onetwoQUIT");
  EXPECT_TRUE(reached_.empty());
}

TEST_F(ReplyQueueTest, ASilentStepStillReachesItsMilestoneInTime) {
  ReplyQueue queue(true);
  queue.Add(start_, {.steps = {{"", 100ms, 0ms, Milestone::DarkMeasured}}});
  EXPECT_TRUE(Pump(queue, start_ + 100ms));
  EXPECT_TRUE(reached_.empty());
  EXPECT_FALSE(Pump(queue, start_ + 101ms));
  EXPECT_EQ(reached_, std::vector{Milestone::DarkMeasured});
}

}  // namespace
}  // namespace vexa::simulator

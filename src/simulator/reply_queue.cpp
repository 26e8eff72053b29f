// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/reply_queue.h"

#include <algorithm>

namespace vexa::simulator {
namespace {

constexpr qsizetype kBytesPerSecond = 5760;
constexpr qsizetype kFrameLength = 4;
constexpr qsizetype kBytesPerWrite = 32;

}  // namespace

void ReplyQueue::Add(Clock::time_point arrival, const Response& response) {
  if (response.dropsPending) {
    Clear();
  }
  Clock::time_point start = arrival + WireTime(kFrameLength);
  if (!steps_.empty()) {
    const QueuedStep& last = steps_.back();
    start = std::max(start, last.start + WireTime(last.step.bytes.size()));
  }
  for (const ReplyStep& step : response.steps) {
    start += step.pause;
    if (paced_) {
      start += step.exposure;
    }
    steps_.push_back({step, start});
    start += WireTime(step.bytes.size());
  }
}

std::optional<ReplyQueue::Clock::time_point> ReplyQueue::Pump(Clock::time_point now,
                                                              const Writer& write,
                                                              const Reached& reached) {
  while (!steps_.empty()) {
    QueuedStep& queued = steps_.front();
    const qsizetype size = queued.step.bytes.size();
    const qsizetype over = BytesOver(queued, now);
    if (over > queued.written) {
      write(QByteArrayView(queued.step.bytes).sliced(queued.written, over - queued.written));
      queued.written = over;
    }
    if (over < size || now < queued.start) {
      return queued.start + WireTime(std::min(size, queued.written + kBytesPerWrite));
    }
    const Milestone milestone = queued.step.milestone;
    steps_.pop_front();
    if (milestone != Milestone::None) {
      reached(milestone);
    }
  }
  return std::nullopt;
}

ReplyQueue::Clock::duration ReplyQueue::WireTime(qsizetype bytes) const {
  if (!paced_) {
    return {};
  }
  // Rounded up, so that a call at this moment finds the byte over.
  return std::chrono::ceil<Clock::duration>(
      std::chrono::duration<qsizetype, std::ratio<1, kBytesPerSecond>>(bytes));
}

qsizetype ReplyQueue::BytesOver(const QueuedStep& queued, Clock::time_point now) const {
  const qsizetype size = queued.step.bytes.size();
  if (now < queued.start) {
    return 0;
  }
  if (!paced_) {
    return size;
  }
  const auto elapsed = std::chrono::duration_cast<std::chrono::nanoseconds>(now - queued.start);
  return std::min<qsizetype>(size, elapsed.count() * kBytesPerSecond / std::nano::den);
}

}  // namespace vexa::simulator

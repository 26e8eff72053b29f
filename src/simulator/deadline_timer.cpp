// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/deadline_timer.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

namespace vexa::simulator {

DeadlineTimer::DeadlineTimer(std::function<void()> due)
    : descriptor_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      due_(std::move(due)) {
  if (descriptor_ < 0) {
    throw std::system_error(errno, std::generic_category(), "timer");
  }
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    std::uint64_t expirations = 0;
    if (::read(descriptor_, &expirations, sizeof expirations) == sizeof expirations) {
      due_();
    }
  });
}

DeadlineTimer::~DeadlineTimer() {
  notifier_.reset();
  ::close(descriptor_);
}

void DeadlineTimer::Arm(Clock::time_point deadline) {
  // The steady clock is CLOCK_MONOTONIC here; an all-zero time would disarm.
  const auto since = std::max(deadline.time_since_epoch(), Clock::duration(1));
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since);
  itimerspec when{};
  when.it_value.tv_sec = seconds.count();
  when.it_value.tv_nsec = std::chrono::nanoseconds(since - seconds).count();
  ::timerfd_settime(descriptor_, TFD_TIMER_ABSTIME, &when, nullptr);
}

void DeadlineTimer::Disarm() {
  const itimerspec never{};
  ::timerfd_settime(descriptor_, 0, &never, nullptr);
}

}  // namespace vexa::simulator

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <chrono>
#include <functional>
#include <memory>

namespace vexa::simulator {

/// Calls back at an absolute moment of the steady clock, by a kernel timer: QTimer rounds to whole
/// milliseconds, which is 6 bytes on the wire. Asleep until then. Needs a running event loop.
class DeadlineTimer {
 public:
  using Clock = std::chrono::steady_clock;

  /// Throws std::system_error when the system has no timer left.
  explicit DeadlineTimer(std::function<void()> due);
  DeadlineTimer(const DeadlineTimer&) = delete;
  DeadlineTimer& operator=(const DeadlineTimer&) = delete;
  ~DeadlineTimer();

  /// Calls back once, at this moment or at once when it is past; replaces an earlier deadline.
  void Arm(Clock::time_point deadline);
  void Disarm();

 private:
  int descriptor_;
  std::function<void()> due_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vexa::simulator

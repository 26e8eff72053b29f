// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <coroutine>
#include <utility>
#include <vector>

namespace vexa {

/// Where coroutines sleep until something happens: `co_await awakening.Sleep();` in them, Wake()
/// from a notification. They go on from the event loop, never from within the notification, and may
/// be woken for nothing: look again and sleep on.
class Awakening {
 public:
  Awakening() = default;
  Awakening(const Awakening&) = delete;
  Awakening& operator=(const Awakening&) = delete;

  [[nodiscard]] bool IsAwaited() const { return !sleeping_.empty(); }

  void Wake() {
    if (IsAwaited()) {
      QMetaObject::invokeMethod(
          &turn_, [this] { WakeAtOnce(); }, Qt::QueuedConnection);
    }
  }

  /// They go on before this call returns; for an owner that ends.
  void WakeAtOnce() {
    for (const std::coroutine_handle<> sleeping : std::exchange(sleeping_, {})) {
      sleeping.resume();
    }
  }

  struct Sleeper {
    Awakening* place;
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> sleeping) const {
      place->sleeping_.push_back(sleeping);
    }
    void await_resume() const noexcept {}
  };
  [[nodiscard]] Sleeper Sleep() { return {this}; }

 private:
  QObject turn_;  ///< no turn of the event loop reaches back to an Awakening that is gone
  std::vector<std::coroutine_handle<>> sleeping_;
};

}  // namespace vexa

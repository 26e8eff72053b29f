// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <coroutine>
#include <utility>

namespace vexa {

/// Where one coroutine sleeps until something happens: `co_await awakening.Sleep();` in it, Wake()
/// from a notification. It goes on from the event loop, never from within the notification, and may
/// be woken for nothing: look again and sleep on.
class Awakening {
 public:
  Awakening() = default;
  Awakening(const Awakening&) = delete;
  Awakening& operator=(const Awakening&) = delete;

  [[nodiscard]] bool IsAwaited() const { return sleeping_ != nullptr; }

  void Wake() {
    if (IsAwaited()) {
      QMetaObject::invokeMethod(
          &turn_, [this] { WakeAtOnce(); }, Qt::QueuedConnection);
    }
  }

  /// Goes on before this call returns; for an owner that ends.
  void WakeAtOnce() {
    if (const auto sleeping = std::exchange(sleeping_, nullptr)) {
      sleeping.resume();
    }
  }

  struct Sleeper {
    Awakening* place;
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> sleeping) const noexcept {
      place->sleeping_ = sleeping;
    }
    void await_resume() const noexcept {}
  };
  [[nodiscard]] Sleeper Sleep() { return {this}; }

 private:
  QObject turn_;  ///< no turn of the event loop reaches back to an Awakening that is gone
  std::coroutine_handle<> sleeping_;
};

}  // namespace vexa

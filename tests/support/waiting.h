// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QCoroTimer>
#include <chrono>
#include <utility>

namespace vexa::test {

/// What a task has to say once it is done; the event loop runs until then.
template <typename T>
T Done(QCoro::Task<T> task) {
  return QCoro::waitFor(std::move(task));
}

/// Lets the event loop run for so long.
inline void Wait(int ms) {
  QCoro::waitFor([](int forMs) -> QCoro::Task<> {
    co_await QCoro::sleepFor(std::chrono::milliseconds(forMs));
  }(ms));
}

}  // namespace vexa::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_waits.h"

#include <QCoroTimer>
#include <QDeadlineTimer>
#include <chrono>

namespace vexa {

using std::chrono::milliseconds;

QCoro::Task<> Drawn() {
  constexpr milliseconds kLayoutAndPainting(40);
  co_await QCoro::sleepFor(kLayoutAndPainting);
}

QCoro::Task<> Until(std::function<bool()> done) {
  constexpr milliseconds kPatience(10000);
  constexpr milliseconds kBetween(10);
  const QDeadlineTimer deadline(kPatience);
  while (!done() && !deadline.hasExpired()) {
    co_await QCoro::sleepFor(kBetween);
  }
}

}  // namespace vexa

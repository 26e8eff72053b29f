// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/blocking_calls.h"

#include <QFutureWatcher>
#include <QPromise>
#include <QTimer>
#include <utility>

namespace vexa {
namespace {

constexpr int kPartingMs = 1000;

}  // namespace

BlockingCalls::BlockingCalls() : thread_(std::make_unique<QThreadPool>()) {
  thread_->setMaxThreadCount(1);
  thread_->setExpiryTimeout(-1);  // always the same thread
}

BlockingCalls::~BlockingCalls() {
  AbandonAtOnce();
  // A pool waits for its threads when it goes, and a call may never come back.
  if (!thread_->waitForDone(kPartingMs)) {
    (void)thread_.release();
  }
}

QCoro::Task<BlockingCalls::Outcome> BlockingCalls::Run(std::function<int()> call, int limitMs) {
  if (!last_.isFinished()) {
    co_return Outcome{.end = End::kOverdue};
  }
  const auto promise = std::make_shared<QPromise<int>>();
  last_ = promise->future();
  promise->start();
  QFutureWatcher<int> watcher;
  QTimer limit;
  limit.setSingleShot(true);
  limit.callOnTimeout([this] { awakening_.Wake(); });
  QObject::connect(&watcher, &QFutureWatcher<int>::finished, &limit, [this] { awakening_.Wake(); });
  thread_->start([promise, call = std::move(call)] {
    promise->addResult(call());
    promise->finish();
  });
  watcher.setFuture(last_);
  limit.start(limitMs);
  abandoned_ = false;
  while (!last_.isFinished() && limit.isActive() && !abandoned_) {
    co_await awakening_.Sleep();
  }
  Outcome outcome;
  if (last_.isFinished()) {
    outcome = {End::kReturned, last_.result()};
  } else if (!abandoned_) {
    outcome.end = End::kOverdue;
  }
  co_return outcome;
}

void BlockingCalls::AbandonAtOnce() {
  abandoned_ = true;
  awakening_.WakeAtOnce();
}

void BlockingCalls::Abandon() {
  abandoned_ = true;
  awakening_.Wake();
}

}  // namespace vexa

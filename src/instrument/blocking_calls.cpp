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
  // A pool waits for its threads when it goes, and a call may never come back.
  if (!thread_->waitForDone(kPartingMs)) {
    (void)thread_.release();
  }
}

BlockingCalls::Outcome BlockingCalls::Run(std::function<int()> call, int limitMs) {
  if (!last_.isFinished()) {
    return {.end = End::kOverdue};
  }
  const auto promise = std::make_shared<QPromise<int>>();
  last_ = promise->future();
  promise->start();
  QFutureWatcher<int> watcher;
  QTimer limit;
  QEventLoop loop;
  QObject::connect(&watcher, &QFutureWatcher<int>::finished, &loop, &QEventLoop::quit);
  QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
  thread_->start([promise, call = std::move(call)] {
    promise->addResult(call());
    promise->finish();
  });
  watcher.setFuture(last_);
  limit.setSingleShot(true);
  limit.start(limitMs);
  waiting_ = &loop;
  loop.exec();
  waiting_ = nullptr;
  if (last_.isFinished()) {
    return {End::kReturned, last_.result()};
  }
  return {.end = limit.isActive() ? End::kAbandoned : End::kOverdue};
}

void BlockingCalls::Abandon() {
  if (waiting_ != nullptr) {
    waiting_->quit();
  }
}

}  // namespace vexa

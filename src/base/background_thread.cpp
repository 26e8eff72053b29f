// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/background_thread.h"

#include <atomic>

namespace vexa {
namespace {

constexpr unsigned long kPatienceMs = 250;

std::atomic<int> running = 0;

}  // namespace

BackgroundThread::BackgroundThread(BackgroundWork* work, QObject& owner) : thread_(new QThread) {
  work->moveToThread(thread_);
  QObject::connect(work, &BackgroundWork::Posted, &owner,
                   [](const std::function<void()>& call) { call(); });
  QObject::connect(thread_, &QThread::finished, work, &QObject::deleteLater);
  QObject::connect(
      thread_, &QThread::finished, thread_, [] { --running; }, Qt::DirectConnection);
  ++running;
  thread_->start();
}

BackgroundThread::~BackgroundThread() {
  thread_->requestInterruption();
  thread_->quit();
  if (thread_->wait(kPatienceMs)) {
    delete thread_;
  }
}

bool BackgroundThread::AnyLeft() {
  return running > 0;
}

}  // namespace vexa

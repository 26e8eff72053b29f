// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/sample_fit.h"

#include <utility>

namespace vexa {

QCoro::Task<std::optional<FilmFit>> SampleFit::Make(SampleFitTask task) {
  stop_ = std::stop_source();
  result_ = FilmFitFault::kStopped;
  thread_.reset(QThread::create([this, task = std::move(task), stop = stop_.get_token()] {
    const auto& [request, reflectance, noise] = task;
    result_ = FitFilm(reflectance, request, noise.IsEmpty() ? nullptr : &noise, stop);
  }));
  QObject::connect(
      thread_.get(), &QThread::finished, &turn_, [this] { done_.Wake(); }, Qt::QueuedConnection);
  thread_->start();
  while (!thread_->isFinished()) {
    co_await done_.Sleep();
  }
  thread_->wait();
  thread_.reset();
  const FilmFit* fit = std::get_if<FilmFit>(&result_);
  co_return fit != nullptr ? std::optional(*fit) : std::nullopt;
}

void SampleFit::EndAtOnce() {
  if (thread_ != nullptr) {
    Cancel();
    thread_->wait();
    done_.WakeAtOnce();
  }
}

}  // namespace vexa

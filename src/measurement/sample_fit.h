// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QObject>
#include <QThread>
#include <memory>
#include <optional>
#include <stop_token>
#include <variant>

#include "base/awakening.h"
#include "optics/film_fit.h"

namespace vexa {

/// The fit of a sample that is about to be stored.
struct SampleFitTask {
  FilmFitRequest request;
  ReflectanceSpectrum reflectance;
  ReflectanceSpectrum noise;  ///< as a slot has it
};

/// Fits one sample at a time on a thread of its own, so that the event loop goes on: several layers
/// within wide ranges may take seconds.
class SampleFit {
 public:
  SampleFit() = default;
  SampleFit(const SampleFit&) = delete;
  SampleFit& operator=(const SampleFit&) = delete;
  ~SampleFit() { EndAtOnce(); }

  /// Nothing when the spectrum is refused, or the fit was given up.
  [[nodiscard]] QCoro::Task<std::optional<FilmFit>> Make(SampleFitTask task);

  /// Gives up the fit that runs.
  void Cancel() { stop_.request_stop(); }

  /// Likewise, and whoever waits for it goes on before this returns.
  void EndAtOnce();

 private:
  std::unique_ptr<QThread> thread_;  ///< as long as a fit runs
  std::stop_source stop_;
  std::variant<FilmFit, FilmFitFault> result_;
  Awakening done_;
  QObject turn_;  ///< where the thread's end is heard
};

}  // namespace vexa

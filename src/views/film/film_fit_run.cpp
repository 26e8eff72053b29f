// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_run.h"

#include <memory>

namespace vexa {

FilmFitRun::~FilmFitRun() {
  Cancel();
  pool_.waitForDone();
}

void FilmFitRun::Start(const FilmFitRequest& request, const std::map<int, Spectrum>& spectra) {
  Cancel();
  stop_ = std::stop_source();
  left_ = static_cast<int>(spectra.size());
  const auto shared = std::make_shared<const FilmFitRequest>(request);
  for (const auto& [slot, spectrum] : spectra) {
    pool_.start(
        [this, run = run_, stop = stop_.get_token(), shared, slot = slot, spectrum = spectrum] {
          const auto result = std::make_shared<const Result>(
              FitFilm(spectrum.reflectance, *shared,
                      spectrum.noise.IsEmpty() ? nullptr : &spectrum.noise, stop));
          QMetaObject::invokeMethod(
              this, [this, run, slot, result] { Take(run, slot, *result); }, Qt::QueuedConnection);
        });
  }
}

void FilmFitRun::Cancel() {
  pool_.clear();
  stop_.request_stop();
  ++run_;
  left_ = 0;
}

void FilmFitRun::Take(int run, int slot, const Result& result) {
  if (run == run_) {
    --left_;
    emit Fitted(slot, result);
  }
}

}  // namespace vexa

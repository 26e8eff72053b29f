// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QThreadPool>
#include <map>
#include <stop_token>
#include <variant>

#include "optics/film_fit.h"

namespace vexa {

/// Fits spectra on a pool of threads, and tells of each as soon as it is done.
class FilmFitRun : public QObject {
  Q_OBJECT

 public:
  using Result = std::variant<FilmFit, FilmFitFault>;

  struct Spectrum {
    ReflectanceSpectrum reflectance;
    ReflectanceSpectrum noise;  ///< as a slot has it
  };

  FilmFitRun() = default;
  /// Gives up what runs.
  ~FilmFitRun() override;

  /// Begins anew with spectra by the numbers of their slots; what ran before is told no more.
  void Start(const FilmFitRequest& request, const std::map<int, Spectrum>& spectra);
  void Cancel();

  [[nodiscard]] int Left() const { return left_; }

 signals:
  void Fitted(int slot, const vexa::FilmFitRun::Result& result);

 private:
  void Take(int run, int slot, const Result& result);

  QThreadPool pool_;
  std::stop_source stop_;
  int run_ = 0;
  int left_ = 0;
};

}  // namespace vexa

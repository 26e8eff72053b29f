// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "optics/film_fit.h"
#include "optics/fourier_thickness.h"
#include "views/common/plot.h"

namespace vexa {

/// A measured spectrum with the fitted one, and the residual below.
class FilmFitPlot : public Plot {
  Q_OBJECT

 public:
  explicit FilmFitPlot(QWidget* parent = nullptr);

  /// Without a fit the measured curve stands alone.
  void Show(const ReflectanceSpectrum& measured, int slot, const std::optional<FilmFit>& fit);
  void ShowNothing();

 private:
  QCPAxisRect* lower_;
  FittedLegend* legend_;
  QCPGraph* measured_;
  QCPGraph* fitted_;
  QCPGraph* residual_;
};

/// The Fourier amplitude over the thickness, its peaks and the fitted thicknesses marked.
class FourierPlot : public Plot {
  Q_OBJECT

 public:
  explicit FourierPlot(QWidget* parent = nullptr);

  void Show(const std::optional<FourierThickness>& transform, const std::optional<FilmFit>& fit);

 private:
  void AddNoFringes();
  void AddLabel(const FourierPeak& peak, double place);

  QCPGraph* amplitude_;
  QCPGraph* peaks_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <QVector>

#include "base/spectrum.h"
#include "views/graph/abscissa.h"

namespace vexa {

/// A mark at the smallest value of a spectrum within the wavelengths that a plot shows, with its
/// wavelength and value.
class MinimumMark {
 public:
  MinimumMark(QCustomPlot& plot, Abscissa abscissa);

  /// Marks the minimum of the spectrum (percent) in the shown range, hides the mark when there is
  /// no spectrum or no part of it is shown; the caller redraws.
  void Show(const ReflectanceSpectrum* spectrum);

 private:
  [[nodiscard]] QVector<QPointF> CurvePoints(const QRectF& around) const;
  void PutTextWhereLeastIs();

  QCustomPlot& plot_;
  Abscissa abscissa_;
  QCPItemTracer* point_;
  QCPItemText* text_;
};

}  // namespace vexa

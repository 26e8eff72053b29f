// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include "measurement/vexatype.h"

namespace vexa {

/// The wavelength cursor of a graph over the wavelength: a line, and beside it what all valid slots
/// reflect there.
class WavelengthCursor {
 public:
  explicit WavelengthCursor(QCustomPlot& plot);

  /// Moves to a whole nanometre, limited to 440..840.
  void MoveTo(int nm);
  [[nodiscard]] int Position() const { return nm_; }

  /// Takes over the values of the slots; hides everything when the settings say so.
  void Show(const VEXATYPE& state);

 private:
  void Refresh();

  QCPItemStraightLine* line_;
  QCPItemText* readout_;
  QStringList names_;
  std::vector<ReflectanceSpectrum> spectra_;
  int nm_ = 550;
};

}  // namespace vexa

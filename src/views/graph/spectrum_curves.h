// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "measurement/vexatype.h"

namespace vexa {

/// A spectrum as the views show it: a line of a graph, a column of a table.
struct SpectrumCurve {
  QString name;   ///< in a legend or heading
  QString label;  ///< where there is little room
  QPen pen;
  QCPScatterStyle marker = QCPScatterStyle::ssNone;
  ReflectanceSpectrum values;
};

/// The reflectance of all valid slots in percent, in their order, the selected one with a heavier
/// line; then that of the reference sample when the settings show it.
[[nodiscard]] std::vector<SpectrumCurve> ReflectanceCurves(const VEXATYPE& state, int selectedSlot);

/// The refractive index that the reflectance of each valid slot is that of as a bare surface; that
/// of its film, where its thickness was computed with the substrate's, of the selected slot alone
/// or, with none selected (0), of every one; then those of film and substrate that are set.
[[nodiscard]] std::vector<SpectrumCurve> IndexCurves(const VEXATYPE& state, int selectedSlot);

/// The light amounts of background, reference and last sample in detector counts, as far as they
/// were measured, at the wavelengths that the calibration shift gives them.
[[nodiscard]] std::vector<SpectrumCurve> LightCurves(const VEXATYPE& state);

}  // namespace vexa

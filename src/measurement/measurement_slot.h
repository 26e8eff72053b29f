// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include "base/flag.h"
#include "base/spectrum.h"

namespace vexa {

/// What is known of a sample besides its spectrum.
struct SampleInfo {
  QString sampleNumber;
  QString remark1;
  QString remark2;
  QDateTime measuredAt;  ///< local time; invalid until something was measured
};

/// One of the ten stored measurements.
struct MeasurementSlot {
  ReflectanceSpectrum reflectance;  ///< percent, never negative
  SampleInfo info;
  double thickness = 0.0;  ///< nm; 0 when none was computed
  Flag valid;              ///< the slot holds a spectrum, measured or loaded
};

}  // namespace vexa

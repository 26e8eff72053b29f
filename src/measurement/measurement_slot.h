// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include "base/flag.h"
#include "base/spectrum.h"
#include "colour/colorimetry.h"
#include "optics/thickness.h"
#include "standards/judgement.h"

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
  ColourResult colour;
  Judgement judgement;
  ThicknessResult thickness;  ///< zero when none was computed
  Flag valid;                 ///< the slot holds a spectrum, measured or loaded
};

}  // namespace vexa

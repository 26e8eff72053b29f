// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

#include "base/flag.h"
#include "base/spectrum.h"
#include "colour/colorimetry.h"
#include "measurement/frame_conditions.h"
#include "optics/film_fit.h"
#include "optics/thickness.h"
#include "optics/thickness_doubts.h"
#include "standards/judgement.h"

namespace vexa {

/// What is known of a sample besides its spectrum.
struct SampleInfo {
  QString sampleNumber;
  QString remark1;
  QString remark2;
  QDateTime measuredAt;  ///< local time; invalid until something was measured

  bool operator==(const SampleInfo&) const = default;
};

/// One of the ten stored measurements.
struct MeasurementSlot {
  ReflectanceSpectrum reflectance;  ///< percent, never negative
  ReflectanceSpectrum noise;        ///< of it, up to a common factor; zero where not known
  SampleInfo info;
  ColourResult colour;
  Judgement judgement;
  ThicknessResult thickness;           ///< zero when none was computed
  std::vector<ThicknessDoubt> doubts;  ///< about the thickness
  std::optional<FilmFit> fit;          ///< made last of this spectrum
  ReflectanceSpectrum filmIndex;  ///< that the thickness was computed with, where the substrate's
                                  ///< index gives it; else zero
  std::optional<SampleConditions> taken;  ///< nothing where the slot was loaded from a file
  Flag valid;                             ///< the slot holds a spectrum, measured or loaded
  Flag informationTyped;  ///< the information was typed after the sample was measured
};

}  // namespace vexa

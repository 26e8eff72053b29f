// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

#include "base/flag.h"
#include "instrument/wavelength_mapping.h"
#include "optics/dispersion_setting.h"
#include "optics/thickness.h"

namespace vexa {

/// Settings of the instrument; the initial values are the built-in defaults.
struct InstrumentSettings {
  std::int16_t controllerPort = 5;  ///< serial port number; 0 is the GP-IB controller box
  Flag serialController = true;     ///< the serial controller is in use
  LinePositions linePositions = kDefaultLinePositions;
  std::int16_t detectorStartNm = 380;  ///< kept for the start-up file; acquisitions map from 440
  std::int16_t samplingTimeMs = 3000;  ///< integration time of a line, 30..20000
  std::int16_t averagingCount = 1;     ///< lines averaged for a frame, 1..16
  std::int16_t settlingTimeMs = 380;
  std::int16_t calibrationShiftNm = 4;  ///< 0..7
};

/// What the views show, and how.
struct DisplaySettings {
  std::int16_t view = 0;  ///< 0..6 in the order of the view menu
  Flag showReferenceData;
  Flag fullScale = true;  ///< the wavelength axis is 440..840 whatever the next two hold
  double shortestNm = 440.0;
  double longestNm = 840.0;
  double wavelengthTickNm = 100.0;
  Flag autoScale = true;  ///< of the reflectance axis
  double maximumPercent = 4.0;
  double minimumPercent = 0.0;
  Flag autoTicks = true;
  double tickPercent = 1.0;
  std::int16_t textStepNm = 1;
  Flag xyMode = true;         ///< the xy diagram, otherwise the a*b* diagram
  std::int16_t labScale = 2;  ///< 0, 1, 2: the a*b* axes reach to 10, 20, 40
  Flag showCursor = true;
  Flag showMinimum = true;
};

/// How a film's thickness is measured.
struct ThicknessSettings {
  Flag enabled;
  std::int16_t type = ThicknessType::kA;
  std::int16_t kind = ThicknessKind::kPhysical;
  DispersionSetting coat = DefaultCoatSetting();
};

}  // namespace vexa

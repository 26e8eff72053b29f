// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "instrument/wavelength_mapping.h"
#include "measurement/measurement_slot.h"

namespace vexa {

inline constexpr int kSlotCount = 10;

/// Settings of the instrument; the initial values are the built-in defaults.
struct InstrumentSettings {
  std::int16_t controllerPort = 5;  ///< serial port number; 0 is the GP-IB controller box
  Flag serialController = true;     ///< the serial controller is in use
  LinePositions linePositions = kDefaultLinePositions;
  std::int16_t samplingTimeMs = 3000;  ///< integration time of a line, 30..20000
  std::int16_t averagingCount = 1;     ///< lines averaged for a frame, 1..16
  std::int16_t settlingTimeMs = 380;
  std::int16_t calibrationShiftNm = 4;  ///< 0..7
};

/// The one measurement state that the whole program shares. The window, a command or a test owns
/// it and hands it on by reference; only the measurement sequence, the start-up, the file readers
/// and the settings dialogs write to it.
struct VEXATYPE {
  VEXATYPE();

  /// Slot 1..10; null for any other number.
  [[nodiscard]] MeasurementSlot* Slot(int number);
  [[nodiscard]] const MeasurementSlot* Slot(int number) const;

  [[nodiscard]] bool HasValidSlot() const;

  /// Empties all ten slots and their sample information.
  void ClearSlots();

  RawSpectrum background;
  RawSpectrum reference;
  RawSpectrum sample;
  Flag backgroundMeasured;
  Flag referenceMeasured;

  ReflectanceSpectrum referenceReflectance;  ///< of the reference sample, percent
  InstrumentSettings instrument;
  std::array<MeasurementSlot, kSlotCount> measurementSlots;

  QString programDirectory;
  QString envFileName;
  QString currentDataFileName;  ///< full path of the data file opened or saved last
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "colour/colour_stock.h"
#include "measurement/frame_conditions.h"
#include "measurement/measurement_slot.h"
#include "measurement/settings.h"
#include "optics/thickness_history.h"
#include "standards/standard_set.h"

namespace vexa {

inline constexpr int kSlotCount = 10;

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

  /// The display conditions of colour points taken now.
  [[nodiscard]] StockConditions ColourConditions() const;

  RawSpectrum background;
  RawSpectrum reference;
  RawSpectrum sample;
  Flag backgroundMeasured;
  Flag referenceMeasured;
  FrameConditions backgroundTaken;  ///< meaningful once it was measured
  FrameConditions referenceTaken;
  std::array<MeasurementSlot, kSlotCount> measurementSlots;

  InstrumentSettings instrument;
  DisplaySettings display;
  ColourSettings colour;
  DispersionSetting referenceSetting = DefaultReferenceSetting();
  ThicknessSettings thickness;

  ReflectanceSpectrum referenceReflectance;  ///< of the reference sample, percent
  ReflectanceSpectrum filmIndex;
  ReflectanceSpectrum substrateIndex;

  StandardSet standard;
  ReferenceMarker chromaMarker;
  ReferenceMarker hueMarker;
  Flag standardsChanged;  ///< since they were saved or read

  ColourStock stock;
  Flag accumulate;  ///< evaluated colours are added to the stock
  ThicknessHistory thicknessHistory;
  ExtremumList extrema;  ///< of the thickness computed last
  Flag autoThickness;    ///< compute the thickness after each measurement

  QString programDirectory;
  QString envFileName;
  Flag envFileRead;          ///< the environment in force was read from that file, or written to it
  QString standardFileName;  ///< full path of the standard file in use
  QString currentDataFileName;  ///< full path of the data file opened or saved last
  QString dataFileComment;      ///< second line of the block file read last
};

/// The name as a full path: as it is when it holds ":", "\" or "/", else in the program directory.
[[nodiscard]] QString CompletePath(const QString& programDirectory, const QString& name);
[[nodiscard]] QString CompletePath(const VEXATYPE& state, const QString& name);

}  // namespace vexa

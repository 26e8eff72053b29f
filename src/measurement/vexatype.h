// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "base/known_files.h"
#include "colour/colour_stock.h"
#include "measurement/frame_conditions.h"
#include "measurement/measurement_slot.h"
#include "measurement/settings.h"
#include "optics/thickness_history.h"
#include "standards/standard_set.h"

namespace vexa {

inline constexpr int kSlotCount = 10;
using SlotTable = std::array<MeasurementSlot, kSlotCount>;  ///< slots 1..10

/// Everything that is set and not measured, with the names of the files that it comes from. A
/// dialog or a reader makes a new one; a Session puts it in force.
struct Settings {
  /// The display conditions of colour points taken under these settings.
  [[nodiscard]] StockConditions ColourConditions() const;

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

  QString programDirectory;
  QString envFileName = QStringLiteral("vexa.env");
  KnownFiles knownFiles;  ///< start-up, environment and calibration file, as read or written last
  Flag envFileRead;       ///< the environment in force was read from that file, or written to it
  QString standardFileName;  ///< full path of the standard file in use
};

/// What a sample's reflectance is computed with besides its frames, as it was in force when the
/// acquisition of its frame began.
struct SampleBasis {
  SampleConditions conditions;
  ReflectanceSpectrum referenceReflectance;
};

/// The one measurement state that the whole program shares. A Session owns it and is alone in
/// changing it; everyone else reads it.
struct VEXATYPE : Settings {
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
  FrameConditions backgroundTaken;  ///< meaningful once it was measured
  FrameConditions referenceTaken;
  SampleBasis sampleBasis;  ///< of the sample measured last
  SlotTable measurementSlots;

  ColourStock stock;
  Flag accumulate;  ///< evaluated colours are added to the stock
  ThicknessHistory thicknessHistory;
  ExtremumList extrema;  ///< of the thickness computed last
  Flag autoThickness;    ///< compute the thickness after each measurement

  QString currentDataFileName;  ///< full path of the data file opened or saved last
  Flag slotsSaved;              ///< nothing of the slots has changed since that
  QString dataFileComment;      ///< second line of the block file read last
};

/// The name as a full path: as it is when it holds ":", "\" or "/", else in the program directory.
[[nodiscard]] QString CompletePath(const QString& programDirectory, const QString& name);
[[nodiscard]] QString CompletePath(const Settings& settings, const QString& name);

}  // namespace vexa

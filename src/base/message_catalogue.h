// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

namespace vexa {

/// Every message of the system. What a comment calls %1, %2 are its arguments.
enum class Message : std::uint8_t {
  // Files.
  kReplaceFile,
  kReplaceFileOrCancel,  ///< where the window asks with OK and Cancel
  kNameNotEncodable,     ///< %1 path
  kWriteError,           ///< %1 path, %2 reason
  kDataReadError,        ///< %1 header
  kOldDataVersion,
  kEraseSlots,  ///< %1 count with its sign place
  kSubstrateVersionError,
  kStockReadError,          ///< %1 header
  kStandardVersionRefused,  ///< %1 path
  kStandardReadError,       ///< %1 path
  kSaveStandards,

  // Settings files.
  kSettingsReadError,        ///< %1 path
  kEnvironmentVersionError,  ///< %1 path, %2 version
  kEnvironmentReadError,     ///< %1 path
  kEnvironmentMissing,       ///< %1 path
  kUnknownIlluminant,        ///< %1 path, %2 its value
  kNoEnvironmentName,
  kReplaceUnreadEnvironment,  ///< %1 path
  kSaveEnvironment,           ///< %1 path

  // Settings of the program.
  kProgramSettingsUnreadable,  ///< %1 name of the copy
  kLanguageAtNextStart,

  // Journal.
  kJournalOtherVersion,    ///< %1 names
  kJournalUnreadable,      ///< %1 names
  kRestoreSession,         ///< %1 what it holds
  kRestoreDamagedSession,  ///< %1 what it holds
  kJournalWriteError,      ///< %1 path
  kRecordStoreFault,       ///< %1 path
  kRecordStoreUnreadable,  ///< %1 path
  kRecipeFault,            ///< %1 path, with what is wrong as details
  kLotWithoutName,
  kLotWithoutRows,  ///< %1 lot

  // Controller and measurement.
  kControllerFailed,    ///< with the port's diagnosis as details
  kGpibServiceRequest,  ///< %1 step, %2 code, as for the next ones
  kGpibController,
  kGpibFormat,
  kGpibTimeOut,
  kGpibDevice,
  kGpibOverflow,
  kGpibControlBox,
  kGpibUnexpected,
  kSamplingFailed,
  kControllerMissing,
  kMeasureBackground,
  kMeasureReference,
  kMeasureOver,
  kClearAll,
  kSaturated,
  kAcquisitionFailed,  ///< with the port's diagnosis as details
  kEndMeasurement,     ///< asked when the window is closed while something runs
  kUnexpectedFault,    ///< %1 what the system says
  kNoValidData,

  // Colour.
  kStockNowFull,
  kStockFull,
  kClearStock,            ///< asked when accumulating is switched on
  kClearStockForDisplay,  ///< asked by the display settings
  kAbortDiagram,

  // Dispersion and thickness. %1 names the setting and ends in CR, or is empty.
  kUnknownDispersionKind,
  kDispersionFault,
  kIndexFileFault,
  kSubstrateFileFault,
  kTypeCWithSubstrate,
  kReferenceOutOfRange,
  kIndexOutOfRange,
  kCoefficientNotANumber,
  kReferenceFileReadError,
  kReferenceFileWriteError,
  kIndexFileReadError,  ///< also of the substrate's
  kIndexFileWriteError,
  kTooFewExtrema,
  kTooManyExtrema,
  kThicknessFault,
  kThicknessDisabled,

  // Thickness history.
  kHistoryThicknessDisabled,
  kHistoryKindDiffers,
  kHistoryFull,
  kHistoryNoPoint,
  kHistoryClear,
  kHistoryScaleFault,
  kHistoryScaleOutOfRange,
  kHistoryWriteError,

  // Standards. %1 names the group, or the field.
  kStandardOutOfRange,
  kStandardNegative,
  kStandardReversed,
  kStandardSameWavelength,
  kStandardHueOutOfRange,
  kStandardNotANumber,

  // Display settings. %1 and %2 are the bounds.
  kShortestOutOfRange,
  kLongestOutOfRange,
  kWidthOutOfRange,
  kWavelengthTickOutOfRange,
  kMinimumOutOfRange,
  kMaximumOutOfRange,
  kTickOutOfRange,
  kTextStepNotANumber,
  kTextStepOutOfRange,
  kAverageShortestOutOfRange,
  kAverageLongestOutOfRange,
  kAverageWidthOutOfRange,
  kEntryRefused,

  // Other entries.
  kEntryNotEncodable,   ///< %1 entry
  kSampleNumberSplits,  ///< %1 sample numbers, a line each
  kNotADate,            ///< %1 entry
  kSamplingTimeOutOfRange,
  kAveragingOutOfRange,
  kShiftOutOfRange,
  kShiftChanged,  ///< %1 path
  kMarginOutOfRange,
  kMarginsTooLarge,
  kPrinterMissing,  ///< %1 printer
  kPrintError,      ///< %1 printer
};

inline constexpr int kMessageCount = static_cast<int>(Message::kPrintError) + 1;

enum class MessageIcon : std::uint8_t { kStop, kQuestion, kWarning, kInformation };
enum class MessageButtons : std::uint8_t { kOk, kOkCancel, kYesNoCancel, kYesNo };

/// What all messages of one identity share. Title and text are source texts, to be translated when
/// they are shown; single CR characters break the lines of the text.
struct MessageEntry {
  Message id;
  const char* title;
  MessageIcon icon;
  MessageButtons buttons;
  const char* text;
};

[[nodiscard]] const MessageEntry& CatalogueEntry(Message id);

}  // namespace vexa

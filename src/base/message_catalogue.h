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
  kReplaceUnsaved,
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
  kLinePositionsUnfit,       ///< %1 path, %2 positions
  kNoEnvironmentName,
  kReplaceUnreadEnvironment,  ///< %1 path
  kReplaceChangedFile,        ///< %1 path
  kAnotherWindow,             ///< %1 directory
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
  kRecordsHeld,            ///< %1 path
  kRecordStoreReplaced,    ///< %1 path

  // Records.
  kRecordSettingsUnreadable,  ///< %1 path
  kRecordUnreadable,          ///< %1 why
  kRecordNotWritten,          ///< %1 why
  kSupersededAlready,
  kTooManyForDataFile,

  // Lots.
  kRecipeFault,  ///< %1 path, with what is wrong as details
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
  kUsesSlot,  ///< %1 its number
  kClearAll,
  kSaturated,
  kNoLight,
  kLinesMissing,       ///< %1 lines that came, %2 lines asked for
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
  kFilmFitRefused,  ///< %1 what is wrong with an entry
  kFilmStackUnsaved,
  kFilmStackFault,  ///< %1 path, %2 what is wrong with it

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

  // Files as they come in.
  kFileMissing,        ///< %1 path
  kRecentFileMissing,  ///< %1 path, of the recently used files
  kOneFileAtATime,
};

inline constexpr int kMessageCount = static_cast<int>(Message::kOneFileAtATime) + 1;

// The numbers of icon and buttons add up to the type code of a message.
enum class MessageIcon : std::uint8_t {
  kStop = 16,
  kQuestion = 32,
  kWarning = 48,
  kInformation = 64
};
enum class MessageButtons : std::uint8_t { kOk = 0, kOkCancel = 1, kYesNoCancel = 3, kYesNo = 4 };

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

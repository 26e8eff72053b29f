// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/message.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Layout of a data file, by its place in the save dialog.
enum class DataFileLayout {
  kCsv = 1,         ///< a row a wavelength, a column a slot
  kTenBlocks = 2,   ///< a block of 401 lines for each slot
  kFiveBlocks = 3,  ///< the same for the first five slots
};

/// The layout of a file name: ten blocks when it ends in "dat" (in any case), else comma-separated.
[[nodiscard]] DataFileLayout LayoutByEnding(const QString& path);

/// Writes the slots of the layout, valid or not, as a data file in the program's code page with CR
/// LF line ends. The file is replaced whole or, when anything fails, left as it was; true when
/// written.
[[nodiscard]] bool WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state);

/// Reads a data file by its ending: "dat" (in any case) as blocks, anything else as
/// comma-separated; see there.
[[nodiscard]] bool ReadDataFile(const QString& path, VEXATYPE& state, MessageService& messages);

/// Reads a comma-separated data file of version 2.99 or later, with or without a wavelength column,
/// into all ten slots and evaluates each that is not 0 at 440, 450 and 840 nm alike. A failure is
/// shown; slots already cleared or filled then stay so.
[[nodiscard]] bool ReadCsvDataFile(const QString& path, VEXATYPE& state, MessageService& messages);

/// Reads a block data file of version 3.21, or of 2.99 and before, or of no version, after asking
/// whether the slots that it holds may be cleared. A slot of nothing but 0 is empty. False when
/// refused, and, shown, when it cannot be read; slots already cleared or filled then stay so.
[[nodiscard]] bool ReadDatDataFile(const QString& path, VEXATYPE& state, MessageService& messages);

}  // namespace vexa

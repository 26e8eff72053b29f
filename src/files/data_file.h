// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "base/file_fault.h"
#include "base/message.h"
#include "base/replace_file.h"
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
/// LF line ends; see ReplaceFile.
WriteResult WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state);

/// What a data file says of one slot.
struct DataFileSlot {
  ReflectanceSpectrum reflectance;
  QString sampleNumber;  ///< of a comma-separated file alone
  bool valid = false;
};

/// The content of a data file.
struct DataFileContent {
  bool blocks = false;                ///< otherwise comma-separated
  std::vector<DataFileSlot> entries;  ///< from slot 1 on: all ten, or those of the blocks
  QString comment;                    ///< second line of a block file
};

/// Reads a data file by its ending: "dat" (in any case) as blocks, anything else as
/// comma-separated; see there.
ReadResult<DataFileContent> ReadDataFile(const QString& path);

/// Reads a comma-separated data file of version 2.99 or later, with or without a wavelength column.
/// A slot is valid that is not 0 at 440, 450 and 840 nm alike. Line 2 is taken whole: ten fields,
/// eleven with the wavelength column; the rest of the line is dropped.
ReadResult<DataFileContent> ReadCsvDataFile(const QString& path);

/// Reads a block data file of version 3.21, or of 2.99 and before, or of no version. A slot of
/// nothing but 0 is not valid.
ReadResult<DataFileContent> ReadDatDataFile(const QString& path);

/// What to tell of a data file that cannot be read.
[[nodiscard]] MessageCall DataFileMessage(const FileFault& fault);

/// What is to be asked before a content takes the place of slots; nothing of a comma-separated one.
[[nodiscard]] std::optional<MessageCall> StoreQuestion(const DataFileContent& content);

/// The slots with those of the content in their places, not evaluated. Their sample information is
/// what the file says of it, and empty otherwise.
[[nodiscard]] SlotTable SlotsWith(const DataFileContent& content, SlotTable present);

}  // namespace vexa

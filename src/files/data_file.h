// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "measurement/vexatype.h"

namespace vexa {

/// Layout of a data file, by its place in the save dialog.
enum class DataFileLayout {
  kCsv = 1,         ///< a row a wavelength, a column a slot
  kTenBlocks = 2,   ///< a block of 401 lines for each slot
  kFiveBlocks = 3,  ///< the same for the first five slots
};

/// Writes the slots of the layout, valid or not, as a data file in the program's code page with CR
/// LF line ends. The file is replaced whole or, when anything fails, left as it was; true when
/// written.
[[nodiscard]] bool WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <array>

#include "base/file_fault.h"
#include "base/replace_file.h"
#include "measurement/vexatype.h"

namespace vexa {

/// Writes colour values and sample information of all ten slots as an additional-data file; see
/// ReplaceFile.
WriteResult WriteAddDataFile(const QString& path, const VEXATYPE& state);

/// The sample information of ten slots.
using SampleInfos = std::array<SampleInfo, kSlotCount>;

/// Reads the sample information of such a file (version 2.99 or later); its values are skipped. A
/// fault is told as that of a data file.
ReadResult<SampleInfos> ReadAddDataFile(const QString& path);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

#include "base/file_fault.h"
#include "base/replace_file.h"

namespace vexa {

inline constexpr std::int16_t kLargestCalibrationShiftNm = 7;

/// The calibration shift (0..7 nm) in a calibration file, whatever its header says.
ReadResult<std::int16_t> ReadCalibrationFile(const QString& path);

/// Writes header and shift; see ReplaceFile.
WriteResult WriteCalibrationFile(const QString& path, std::int16_t shiftNm);

}  // namespace vexa

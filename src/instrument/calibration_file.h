// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vexa {

inline constexpr std::int16_t kLargestCalibrationShiftNm = 7;

/// The calibration shift (0..7 nm) in a calibration file, whatever its header says; nothing when
/// the file cannot be read or holds no such shift.
[[nodiscard]] std::optional<std::int16_t> ReadCalibrationFile(const QString& path);

/// Writes header and shift; true when written. See FileText::WriteTo.
[[nodiscard]] bool WriteCalibrationFile(const QString& path, std::int16_t shiftNm);

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/calibration_file.h"

#include "base/text_file.h"

namespace vexa {

std::optional<std::int16_t> ReadCalibrationFile(const QString& path) {
  try {
    TextReader reader = TextReader::Open(path);
    reader.Field();
    const std::int16_t shiftNm = reader.IntegerField();
    if (shiftNm >= 0 && shiftNm <= kLargestCalibrationShiftNm) {
      return shiftNm;
    }
  } catch (const ReadFault&) {
    return std::nullopt;
  }
  return std::nullopt;
}

bool WriteCalibrationFile(const QString& path, std::int16_t shiftNm) {
  FileText text;
  text.Line(QStringLiteral("VEXA-KT 440-840 Ver 3.21 Calibration File")).Number(shiftNm);
  return text.WriteTo(path);
}

}  // namespace vexa

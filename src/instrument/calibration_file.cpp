// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/calibration_file.h"

#include "base/file_kind.h"
#include "base/text_file.h"

namespace vexa {

ReadResult<std::int16_t> ReadCalibrationFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    reader.Field();
    const std::int16_t shiftNm = reader.IntegerField();
    if (shiftNm < 0 || shiftNm > kLargestCalibrationShiftNm) {
      throw reader.Fault(FileFaultKind::kRange);
    }
    return shiftNm;
  });
}

WriteResult WriteCalibrationFile(const QString& path, std::int16_t shiftNm) {
  FileText text;
  text.Line(file_kind::kCalibration.header.toString()).Number(shiftNm);
  return text.WriteTo(path);
}

}  // namespace vexa

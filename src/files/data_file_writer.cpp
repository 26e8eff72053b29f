// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/data_file.h"

#include "base/file_kind.h"
#include "base/number_text.h"
#include "base/text_file.h"

namespace vexa {
namespace {

const QString kValuePattern = QStringLiteral("0.000000000000000");

QString ValueText(double value) {
  return FormatNumber(value, kValuePattern);
}

FileText CsvText(const VEXATYPE& state) {
  QStringList numbers{QStringLiteral("wave")};
  for (const MeasurementSlot& slot : state.measurementSlots) {
    numbers << slot.info.sampleNumber;
  }
  FileText text;
  text.Line(file_kind::kData.header.toString()).Line(numbers.join(u','));
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    QString row = SignedText(nm);
    for (const MeasurementSlot& slot : state.measurementSlots) {
      row += u',' + ValueText(slot.reflectance[nm]);
    }
    text.Line(row);
  }
  return text;
}

FileText BlockText(const VEXATYPE& state, int blocks) {
  int lastValid = 0;
  for (int number = 1; number <= blocks; ++number) {
    if (state.Slot(number)->valid) {
      lastValid = number;
    }
  }
  FileText text;
  text.Line(file_kind::kData.header.toString())
      .Line(state.Slot(1)->info.remark1)
      .Line(SignedText(lastValid));
  for (int number = 1; number <= blocks; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    text.Line(slot.info.sampleNumber);
    for (const double value : slot.reflectance.Values()) {
      text.Line(ValueText(slot.valid ? value : 0.0));
    }
  }
  return text;
}

FileText LayoutText(const VEXATYPE& state, DataFileLayout layout) {
  switch (layout) {
    case DataFileLayout::kTenBlocks:
      return BlockText(state, kSlotCount);
    case DataFileLayout::kFiveBlocks:
      return BlockText(state, kSlotCount / 2);
    case DataFileLayout::kCsv:
      break;
  }
  return CsvText(state);
}

}  // namespace

DataFileLayout LayoutByEnding(const QString& path) {
  return path.endsWith(QLatin1String("dat"), Qt::CaseInsensitive) ? DataFileLayout::kTenBlocks
                                                                  : DataFileLayout::kCsv;
}

WriteResult WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state) {
  return LayoutText(state, layout).WriteTo(path);
}

}  // namespace vexa

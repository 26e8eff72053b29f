// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/data_file.h"

#include <QSaveFile>

#include "base/code_page.h"
#include "base/number_text.h"

namespace vexa {
namespace {

const QString kHeader = QStringLiteral("VEXA-KT 440-840 Ver 3.21 Data File");
const QString kLineEnd = QStringLiteral("\r\n");
const QString kValuePattern = QStringLiteral("0.000000000000000");

QString ValueText(double value) {
  return FormatNumber(value, kValuePattern);
}

QString CsvText(const VEXATYPE& state) {
  QString text = kHeader + kLineEnd + QStringLiteral("wave");
  for (const MeasurementSlot& slot : state.measurementSlots) {
    text += u',' + slot.info.sampleNumber;
  }
  text += kLineEnd;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    text += SignedText(nm);
    for (const MeasurementSlot& slot : state.measurementSlots) {
      text += u',' + ValueText(slot.reflectance[nm]);
    }
    text += kLineEnd;
  }
  return text;
}

QString BlockText(const VEXATYPE& state, int blocks) {
  int lastValid = 0;
  for (int number = 1; number <= blocks; ++number) {
    if (state.Slot(number)->valid) {
      lastValid = number;
    }
  }
  QString text = kHeader + kLineEnd + state.Slot(1)->info.remark1 + kLineEnd +
                 SignedText(lastValid) + kLineEnd;
  const QString empty = ValueText(0.0) + kLineEnd;
  for (int number = 1; number <= blocks; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    text += slot.info.sampleNumber + kLineEnd;
    for (const double value : slot.reflectance.Values()) {
      text += slot.valid ? ValueText(value) + kLineEnd : empty;
    }
  }
  return text;
}

QString LayoutText(const VEXATYPE& state, DataFileLayout layout) {
  switch (layout) {
    case DataFileLayout::kCsv:
      return CsvText(state);
    case DataFileLayout::kTenBlocks:
      return BlockText(state, kSlotCount);
    case DataFileLayout::kFiveBlocks:
      return BlockText(state, kSlotCount / 2);
  }
  return {};
}

}  // namespace

bool WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    return false;
  }
  file.write(Encode(LayoutText(state, layout)));
  return file.commit();
}

}  // namespace vexa

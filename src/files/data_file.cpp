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

QString CsvText(const VEXATYPE& state) {
  QString text = kHeader + kLineEnd + QStringLiteral("wave");
  for (const MeasurementSlot& slot : state.measurementSlots) {
    text += u',' + slot.info.sampleNumber;
  }
  text += kLineEnd;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    text += SignedText(nm);
    for (const MeasurementSlot& slot : state.measurementSlots) {
      text += u',' + FormatNumber(slot.reflectance[nm], kValuePattern);
    }
    text += kLineEnd;
  }
  return text;
}

}  // namespace

bool WriteDataFile(const QString& path, DataFileLayout layout, const VEXATYPE& state) {
  QString text;
  switch (layout) {
    case DataFileLayout::kCsv:
      text = CsvText(state);
      break;
  }
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    return false;
  }
  file.write(Encode(text));
  return file.commit();
}

}  // namespace vexa
